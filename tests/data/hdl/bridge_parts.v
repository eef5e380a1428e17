// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

module Arch_Stone #(parameter WIDTH = 2) (input clk, output lit);
  wire [WIDTH-1:0] load = {WIDTH{clk}};
  wire shade = ^load;
  LANTERN \u.lantern  (.clk(shade), .lit(lit));
endmodule
