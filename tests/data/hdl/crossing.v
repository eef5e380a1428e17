// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// A Verilog top with VHDL inside of it (crossing_parts.vhd), and Verilog inside of that.

module crossing (input clk, input [3:0] din, output [3:0] dout, inout pad);
  wire [3:0] mid;
  Filter u_filter (.Clk(clk), .D(din), .Q(mid), .Pad(pad));
  filter u_second (.clk(clk), .d(mid), .q(dout), .pad(pad));
  vendor_cell u_cell (.i(clk));
endmodule

module counter (input clk, output [1:0] value);
  reg [1:0] state;
  always @(posedge clk) state <= state + 1;
  assign value = state;
endmodule
