// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

module uart_rx (
    input  wire       clk,
    input  wire       rst,
    input  wire       tick,
    input  wire       rx,
    output reg  [7:0] data,
    output reg        strobe,
    output reg        error
);

    localparam IDLE = 2'd0, START = 2'd1, DATA = 2'd2, STOP = 2'd3;

    reg [1:0] state;
    reg [1:0] sync;
    reg [3:0] phase;
    reg [2:0] bit_index;

    wire line   = sync[1];
    wire middle = tick && phase == 4'd7;
    wire last   = tick && phase == 4'd15;

    always @(posedge clk)
        if (rst) begin
            state     <= IDLE;
            sync      <= 2'b11;
            phase     <= 4'd0;
            bit_index <= 3'd0;
            data      <= 8'd0;
            strobe    <= 1'b0;
            error     <= 1'b0;
        end else begin
            sync   <= {sync[0], rx};
            strobe <= 1'b0;
            error  <= 1'b0;
            if (tick)
                phase <= state == IDLE ? 4'd0 : phase + 4'd1;
            case (state)
                IDLE:
                    if (tick && !line)
                        state <= START;
                START:
                    if (middle && line)
                        state <= IDLE;
                    else if (last)
                        state <= DATA;
                DATA: begin
                    if (middle)
                        data <= {line, data[7:1]};
                    if (last) begin
                        bit_index <= bit_index + 3'd1;
                        if (bit_index == 3'd7)
                            state <= STOP;
                    end
                end
                STOP:
                    if (middle) begin
                        strobe <= line;
                        error  <= !line;
                        state  <= IDLE;
                    end
            endcase
        end

endmodule
