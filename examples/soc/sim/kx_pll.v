// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Stands for the device's PLL in a simulation: it passes the clock on and locks after a while.
module KX_PLL #(
    parameter MULTIPLY = 1,
    parameter DIVIDE   = 1
) (
    input  wire CLKIN,
    output wire CLKOUT,
    output reg  LOCK
);

    assign CLKOUT = CLKIN;

    initial begin
        LOCK = 1'b0;
        repeat (8) @(posedge CLKIN);
        LOCK = 1'b1;
    end

endmodule
