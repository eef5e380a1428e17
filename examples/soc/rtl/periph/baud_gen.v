// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Sixteen ticks a bit.
module baud_gen #(
    parameter DIVISOR = 20
) (
    input  wire clk,
    input  wire rst,
    output reg  tick
);

    localparam [31:0] LAST = DIVISOR - 1;

    reg [15:0] count;

    always @(posedge clk)
        if (rst) begin
            count <= 16'd0;
            tick  <= 1'b0;
        end else begin
            tick  <= count == LAST[15:0];
            count <= count == LAST[15:0] ? 16'd0 : count + 16'd1;
        end

endmodule
