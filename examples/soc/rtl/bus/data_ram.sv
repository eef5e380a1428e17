// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Data memory; reads take one cycle.
module data_ram
    import soc_pkg::*;
#(
    parameter int unsigned DEPTH = 1024
) (
    input  logic     clk,
    input  bus_req_t req,
    output bus_rsp_t rsp
);

    localparam int unsigned LG = $clog2(DEPTH);

    word_t memory [0:DEPTH-1];
    word_t read_word;
    logic  read_valid;

    always_ff @(posedge clk) begin
        if (req.valid && req.write)
            memory[req.addr[LG-1:0]] <= req.data;
        read_word  <= memory[req.addr[LG-1:0]];
        read_valid <= req.valid && !req.write && !read_valid;
    end

    assign rsp.data  = read_word;
    assign rsp.ready = req.valid && (req.write || read_valid);

endmodule
