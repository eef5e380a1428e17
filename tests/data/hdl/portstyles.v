// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// The ways in which Verilog-2001 declares ports and nets.

`define BYTE [7:0]
`define BUS(width) [(width)-1:0]
`define NAMED(prefix, name) prefix``_``name

// Directions behind the list, ranges declared twice, registers declared apart.
module oldstyle (clk, d, q, flag, two, ready);
  input clk;
  input [7:0] d;
  wire [7:0] d;
  output [7:0] q;
  output flag;
  output [1:0] two;
  output ready;
  parameter INIT = 8'h5a;
  reg [7:0] q;
  reg flag, held;
  reg [1:0] two;
  assign ready = held;
  always @(posedge clk) begin
    q <= d ^ INIT;
    flag <= &d;
    held <= flag;
    two <= d[1:0];
  end
endmodule

// The names and directions of a list run on.
module newstyle (
    input clk, rst,
    input [3:0] a, b,
    input signed [1:4] c,
    output reg [4:0] sum, difference,
    output `BYTE wide
);
  assign wide = {a, b};
  always @(posedge clk)
    if (rst) {sum, difference} <= 10'd0;
    else {sum, difference} <= {a + b, a - c};
endmodule

module gates (input x, input y, output z);
  and g1 (implied_and, x, y);
  assign implied_or = x | y;
  xor (z, implied_and, implied_or);
endmodule

module portstyles (
    input clk,
    input rst,
    input `BUS(4 * 2) data,
    output `BYTE q,
    output done
);
  wire `BUS(5) total;
  wire `NAMED(pre, post);
  wire `BYTE `NAMED(wide, one);
  wire [4:0] rest;
  wire [1:0] pair;
  reg a, b, c;
  wire e = a & b, f = b | c;
  wire [1:0] g = {a, e}, h = {b, f};

  oldstyle #(8'h11) u_old (clk, data, q, from_old, pair, implied_ready);
  newstyle u_new (.clk(clk), .rst(rst), .a(data[3:0]), .b(data[7:4]), .c({pair, g}), .sum(total), .difference(rest),
                  .wide(`NAMED(wide, one)));
  gates u_gates (.x(from_old), .y(implied_ready), .z(`NAMED(pre, post)));
  assign done = ^total ^ ^rest ^ pre_post ^ ^wide_one ^ ^h;
  always @(posedge clk) {a, b, c} <= data[2:0];
endmodule
