// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Nets and variables of every kind of Verilog-2001.

module resolved (
    input [2:0] a,
    input [2:0] b,
    output [2:0] both,
    output [2:0] any
);
  wand [2:0] w_and;
  triand one_and;
  wor [2:0] w_or;
  trior one_or;
  assign w_and = a, w_and = b;
  assign one_and = a[0], one_and = b[0];
  assign w_or = a, w_or = b;
  assign one_or = a[1], one_or = b[1];
  assign both = w_and ^ {2'b0, one_and};
  assign any = w_or ^ {2'b0, one_or};
endmodule

module nettypes (
    input wire clk,
    input tri [1:0] sel,
    input signed [7:0] level,
    output wire signed [8:0] grown,
    output reg [3:0] count,
    output [2:0] both,
    output [2:0] any,
    output mixed
);
  wire plain;
  tri three;
  tri0 pulled_down;
  tri1 pulled_up;
  tri1 [1:0] pulled_bus;
  supply0 low;
  supply1 [1:0] high;
  reg signed [15:0] filter;
  integer steps;
  time stamp;
  real ratio;
  realtime moment;
  event tick;
  parameter LIMIT = 9;
  specparam DELAY = 3;
  localparam [3:0] START = 4'd2;

  assign plain = sel[0];
  assign three = sel[1];
  assign pulled_down = plain;
  assign pulled_up = three;
  assign pulled_bus = {plain, three};
  assign grown = level + filter[7:0] + {8'b0, low};
  assign mixed = pulled_up & pulled_down & ^pulled_bus & high[0];

  resolved u_resolved (.a(filter[2:0]), .b(level[2:0]), .both(both), .any(any));

  always @(posedge clk) begin
    filter <= filter + level;
    count <= (steps > LIMIT) ? START : count + 1;
    steps <= steps + 1;
    stamp <= stamp + steps;
    if (stamp[0]) steps <= 0;
  end
endmodule
