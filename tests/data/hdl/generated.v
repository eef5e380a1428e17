// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Generate constructs, named and not, nested, with instances inside.

module stage #(parameter WIDTH = 1) (input clk, input [WIDTH-1:0] d, output reg [WIDTH-1:0] q);
  always @(posedge clk) q <= d;
endmodule

module generated #(parameter LANES = 2, parameter FAST = 1) (
    input clk,
    input [LANES-1:0] d,
    output [LANES-1:0] q,
    output [1:0] extra,
    output any
);
  genvar g, h;
  generate
    for (g = 0; g < LANES; g = g + 1) begin : g_lane
      wire sum;
      wire [g+1:0] wide;
      assign sum = d[g] ^ any;
      assign wide = {(g + 2) {sum}};
      stage u_stage (.clk(clk), .d(sum), .q(q[g]));
      for (h = 0; h < 2; h = h + 1) begin : g_tap
        wire tap;
        assign tap = wide[h];
        if (h == 1) begin : g_last
          wire last;
          assign last = tap;
        end
      end
    end
    if (FAST) begin : g_fast
      wire quick;
      assign quick = g_lane[1].sum;
      assign extra[0] = quick;
    end else begin : g_slow
      wire slow;
      assign slow = d[0];
      assign extra[0] = slow;
    end
    case (LANES)
      2: begin : g_two
        wire both;
        assign both = &d;
        assign extra[1] = both;
      end
      default: begin : g_many
        assign extra[1] = 1'b0;
      end
    endcase
  endgenerate

  // Without names of their own these are genblk4 and genblk5: every construct before them in the module counts.
  for (g = 0; g < 2; g = g + 1) begin
    wire unnamed;
    assign unnamed = d[g] & clk;
  end
  if (FAST) begin
    wire lone;
    assign lone = |q;
    assign any = lone;
  end else begin
    assign any = 1'b0;
  end
endmodule
