// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// A registered multiplier, for the device's multiplier cells.
module multiplier #(
    parameter int unsigned A_WIDTH = 16,
    parameter int unsigned B_WIDTH = 8
) (
    input  logic                       clk,
    input  logic [A_WIDTH-1:0]         a,
    input  logic [B_WIDTH-1:0]         b,
    output logic [A_WIDTH+B_WIDTH-1:0] product
);

    always_ff @(posedge clk)
        product <= a * b;

endmodule
