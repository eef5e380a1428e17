// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Arrays of more than one dimension.

module planes (
    input clk,
    input [1:0] addr,
    input signed [7:0] d,
    output reg signed [7:0] q
);
  reg signed [7:0] plane [0:1][3:2];
  reg cube [0:1][-1:0][2:0];
  wire [3:0] \taps[0] [0:1][0:1];
  assign \taps[0] [0][1] = d[3:0];
  always @(posedge clk) begin
    plane[addr[0]][2] <= d;
    cube[0][-1][addr] <= d[0];
    q <= plane[1][3] ^ cube[1][0][2] ^ \taps[0] [addr[0]][1];
  end
endmodule
