// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Arrays of Verilog-2001.

module memories (
    input clk,
    input [1:0] addr,
    input [7:0] d,
    output reg [7:0] q
);
  reg [7:0] up [0:3];
  reg [0:7] down [3:0];
  reg [3:-4] below [-2:1];
  reg bits [0:3];
  reg [7:0] single [5:5];
  integer numbers [0:3];
  time stamps [0:1];
  wire [7:0] taps [0:1];
  wire flags [1:0];

  assign taps[0] = up[addr];
  assign taps[1] = down[addr];
  assign flags[0] = bits[addr];
  assign flags[1] = below[-1][-4];

  always @(posedge clk) begin
    up[addr] <= d;
    down[addr] <= up[0];
    below[1] <= down[0];
    bits[addr] <= d[0];
    single[5] <= below[0];
    numbers[addr] <= single[5];
    stamps[0] <= numbers[addr];
    q <= taps[0] ^ taps[1] ^ {7'b0, flags[0]} ^ {7'b0, flags[1]} ^ stamps[1][7:0];
  end
endmodule
