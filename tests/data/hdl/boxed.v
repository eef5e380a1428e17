// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Modules without source: clock generator, memory, pads, and the JTAG primitive.

module boxed (
    input clk_in,
    input [15:0] din,
    output [15:0] dout,
    output [7:0] wide_out,
    inout pad
);
  wire clk, locked;
  wire [3:0] nibble;
  wire pad_in;
  wire tck, tdi;

  vendor_pll #(.MULTIPLY(4), .MODE("fast"), .RATIO(1.5)) u_pll (.clkin(clk_in), .clkout(clk), .lock(locked), .spare());
  vendor_ram #(16, 4) u_ram (clk, locked, din[3:0], din, dout);
  vendor_cell u_cells[3:0] (.i(din[3:0]), .o(nibble), .pair(din[7:0]), .out2(wide_out));
  vendor_pad u_pad (.io(pad), .o(pad_in), .i(nibble[0]), .oe(nibble[1]));
  defparam u_pad.DRIVE = 8;
  OV_JTAG u_jtag (.tck(tck), .tdi(tdi), .tdo(pad_in ^ tck ^ tdi));
endmodule
