// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

module adder_slice #(
    parameter WIDTH = 4
) (
    input  wire [WIDTH-1:0] a,
    input  wire [WIDTH-1:0] b,
    input  wire             cin,
    output wire [WIDTH-1:0] sum,
    output wire             cout
);

    wire [WIDTH:0] ripple;
    genvar i;

    assign ripple[0] = cin;

    generate
        for (i = 0; i < WIDTH; i = i + 1) begin : g_bit
            wire propagate = a[i] ^ b[i];
            wire generates = a[i] & b[i];

            assign sum[i]      = propagate ^ ripple[i];
            assign ripple[i+1] = generates | (propagate & ripple[i]);
        end
    endgenerate

    assign cout = ripple[WIDTH];

endmodule
