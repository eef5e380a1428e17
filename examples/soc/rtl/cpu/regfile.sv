// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Eight registers; register 0 reads as zero.
module regfile
    import soc_pkg::*;
(
    input  logic       clk,
    input  logic [2:0] ra_addr,
    input  logic [2:0] rb_addr,
    input  logic [2:0] rd_addr,
    output word_t      ra_data,
    output word_t      rb_data,
    output word_t      rd_data,
    input  logic       write,
    input  word_t      wdata
);

    word_t [7:0] regs;

    always_ff @(posedge clk)
        if (write)
            regs[rd_addr] <= wdata;

    assign ra_data = ra_addr == '0 ? '0 : regs[ra_addr];
    assign rb_data = rb_addr == '0 ? '0 : regs[rb_addr];
    assign rd_data = rd_addr == '0 ? '0 : regs[rd_addr];

endmodule
