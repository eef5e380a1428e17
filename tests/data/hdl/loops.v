// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Genvars are no nets, whatever their loops do; integers are.

module loops #(parameter ROUNDS = 0, parameter INNER = 2) (
    input [3:0] a,
    output [3:0] b,
    output reg [3:0] c
);
  genvar none, outer, inner;
  integer k;
  integer outer_like;
  generate
    for (none = 0; none < ROUNDS; none = none + 1) begin : g_none
      wire never;
      assign never = a[none];
    end
    for (outer = 0; outer < 2; outer = outer + 1) begin : g_outer
      for (inner = outer; inner < INNER; inner = inner + 1) begin : g_inner
        wire x;
        assign x = a[2*outer+inner];
        assign b[2*outer+inner] = x;
      end
      for (inner = 0; inner < ROUNDS; inner = inner + 1) begin : g_never
        wire never;
      end
    end
  endgenerate
  assign b[2] = a[2];

  always @* begin
    outer_like = 3;
    for (k = 0; k < 4; k = k + 1) c[k] = a[outer_like-k];
  end
endmodule
