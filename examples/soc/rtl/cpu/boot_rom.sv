// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// The program; its words come from a file when the device is configured.
module boot_rom #(
    parameter              FILE  = "boot.hex",
    parameter int unsigned DEPTH = 256
) (
    input  logic                     clk,
    input  logic [$clog2(DEPTH)-1:0] addr,
    output soc_pkg::instr_t          data
);

    logic [15:0] words [0:DEPTH-1];
    logic [15:0] word;

    initial $readmemh(FILE, words);

    always_ff @(posedge clk)
        word <= words[addr];

    assign data = word;

endmodule
