// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Which nets are listed, and which of them cannot be used.

module memory (input clk, input we, input [3:0] addr, input [7:0] din, output reg [7:0] dout);
  reg [7:0] words [0:15];
  reg flags [0:3];
  always @(posedge clk) begin
    if (we) words[addr] <= din;
    if (we) flags[addr[1:0]] <= din[0];
    dout <= words[addr] ^ {7'b0, flags[addr[1:0]]};
  end
endmodule

module pin (inout pad, input out, input enable, output in);
  assign pad = enable ? out : 1'bz;
  assign in = pad;
endmodule

module usable (
    input clk,
    input [3:0] addr,
    input [7:0] din,
    inout pad,
    inout [1:0] pads,
    output tri shared,
    output [7:0] dout,
    output fixed_out,
    output pad_in
);
  supply0 ground;
  supply1 power;
  wire tied = 1'b1;
  wire [3:0] tied_bus = 4'd9;
  wire mixed_constant;
  wire [1:0] partly;
  reg never_set = 1'b0;
  reg [1:0] phase = 2'd1;
  wire idle;
  wire [3:0] idle_bus;
  wire unread;
  wire undriven;
  wire local_z;
  real level;
  event tick;
  parameter DEPTH = 4;
  reg started;

  assign mixed_constant = 1'b0;
  assign partly[1] = 1'b0;
  assign partly[0] = clk;
  assign unread = din[0] & din[1];
  assign shared = addr[0] ? din[2] : 1'bz;
  assign local_z = addr[1] ? 1'bz : din[3];
  assign fixed_out = 1'b1;
  assign pads = addr[2] ? din[1:0] : 2'bzz;

  initial started = 1'b0;

  always @(posedge clk) begin
    phase <= phase + (tied ^ mixed_constant ^ never_set ^ undriven ^ ground ^ power ^ partly[0] ^ local_z);
    if (tied_bus == 4'd9) started <= 1'b1;
  end

  memory u_mem (.clk(clk), .we(phase[0] & started & pads[0]), .addr(addr), .din(din), .dout(dout));
  pin u_pin (.pad(pad), .out(phase[1]), .enable(addr[3]), .in(pad_in));
endmodule
