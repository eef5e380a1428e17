// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

module debounce #(
    parameter CYCLES_LG = 4
) (
    input  wire clk,
    input  wire rst,
    input  wire raw,
    output reg  stable
);

    reg [1:0]           sync;
    reg [CYCLES_LG-1:0] quiet;

    always @(posedge clk)
        if (rst) begin
            sync   <= 2'b0;
            quiet  <= {CYCLES_LG{1'b0}};
            stable <= 1'b0;
        end else begin
            sync <= {sync[0], raw};
            if (sync[1] == stable)
                quiet <= {CYCLES_LG{1'b0}};
            else begin
                quiet <= quiet + 1'b1;
                if (&quiet)
                    stable <= sync[1];
            end
        end

endmodule
