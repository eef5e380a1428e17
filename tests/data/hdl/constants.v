// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Nets that never change, as far as the text of one module tells.

module gate #(parameter OPEN = 1) (input enable, input d, output q, output narrow);
  wire chosen;
  wire [1:0] mask;
  wire masked;
  assign chosen = OPEN ? d : 1'b0;
  assign mask = {OPEN[0], 1'b1};
  assign masked = mask[1] & d;
  assign q = chosen & enable & masked;
  assign narrow = 1'b1;
endmodule

module pin (inout io, input d, input drive);
  assign io = drive ? d : 1'bz;
endmodule

module constants (
    input clk,
    input [3:0] d,
    output q_open,
    output q_closed,
    output [3:0] sum,
    output [1:0] narrow
);
  parameter WIDTH = 4;
  localparam [3:0] MARK = WIDTH * 2 + 1;
  wire [3:0] by_name;
  wire [3:0] from_constant;
  wire [3:0] joined_high, joined_low;
  wire [3:0] half_constant;
  wire twice;
  reg set_once;
  reg set_at_start;
  reg [3:0] starts_and_counts;
  reg [1:0] state;
  wire carried;

  assign by_name = MARK;
  assign from_constant = by_name;
  assign {joined_high, joined_low} = {4'd1, {2{WIDTH == 4, 1'b0}}};
  assign half_constant[3:2] = 2'b10;
  assign half_constant[1:0] = d[1:0];
  assign twice = 1'b1;
  assign twice = d[0];

  gate u_open (.enable(1'b1), .d(d[0]), .q(q_open), .narrow(narrow[0]));
  gate #(.OPEN(0)) u_closed (.enable(twice), .d(d[1]), .q(q_closed), .narrow(narrow[1]));
  pin u_pin (.io(carried), .d(d[2]), .drive(set_once & set_at_start));

  initial begin
    set_at_start = 1'b0;
    starts_and_counts = 4'd0;
  end
  always @(posedge clk) begin
    set_once <= 1'b1;
    starts_and_counts <= starts_and_counts + 4'd1;
    case (state)
      2'd0: state <= 2'd1;
      default: state <= 2'd0;
    endcase
  end
  assign sum = from_constant ^ joined_high ^ joined_low ^ half_constant ^ starts_and_counts ^ {carried, 1'b0, state};
endmodule
