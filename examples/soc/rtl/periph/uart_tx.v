// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

module uart_tx (
    input  wire       clk,
    input  wire       rst,
    input  wire       tick,
    input  wire       start,
    input  wire [7:0] data,
    output wire       busy,
    output reg        tx
);

    reg [3:0] phase;
    reg [3:0] bits_left;
    reg [8:0] shift;

    assign busy = bits_left != 4'd0;

    always @(posedge clk)
        if (rst) begin
            phase     <= 4'd0;
            bits_left <= 4'd0;
            shift     <= 9'h1ff;
            tx        <= 1'b1;
        end else if (start && !busy) begin
            phase     <= 4'd0;
            bits_left <= 4'd10;
            shift     <= {data, 1'b0};
        end else if (tick && busy) begin
            phase <= phase + 4'd1;
            if (phase == 4'd0)
                {shift, tx} <= {1'b1, shift};
            if (phase == 4'd15)
                bits_left <= bits_left - 4'd1;
        end

endmodule
