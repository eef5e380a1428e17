// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

module fifo #(
    parameter WIDTH = 8,
    parameter LG    = 4
) (
    input  wire             clk,
    input  wire             rst,
    input  wire             push,
    input  wire [WIDTH-1:0] wdata,
    input  wire             pop,
    output wire [WIDTH-1:0] rdata,
    output wire             full,
    output wire             empty
);

    reg [WIDTH-1:0] store [0:(1 << LG)-1];
    reg [LG:0]      write_ptr;
    reg [LG:0]      read_ptr;
    wire [LG:0]     level = write_ptr - read_ptr;

    always @(posedge clk)
        if (rst) begin
            write_ptr <= {(LG+1){1'b0}};
            read_ptr  <= {(LG+1){1'b0}};
        end else begin
            if (push) begin
                store[write_ptr[LG-1:0]] <= wdata;
                write_ptr <= write_ptr + 1'b1;
            end
            if (pop)
                read_ptr <= read_ptr + 1'b1;
        end

    assign rdata = store[read_ptr[LG-1:0]];
    assign full  = level[LG];
    assign empty = level == {(LG+1){1'b0}};

endmodule
