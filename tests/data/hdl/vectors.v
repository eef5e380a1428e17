// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Verilog-2001: vectors of every kind, parameters, instance arrays, functions and tasks, escaped names.

module counter #(parameter WIDTH = 4, parameter STEP = 1) (
    input clk,
    input rst,
    output reg [WIDTH-1:0] value,
    output wrap
);
  wire [WIDTH:0] next;
  assign next = value + STEP;
  assign wrap = next[WIDTH];
  always @(posedge clk)
    if (rst) value <= 0;
    else value <= next[WIDTH-1:0];
endmodule

module inverter (input a, output y);
  assign y = ~a;
endmodule

module vectors (
    input clk,
    input rst,
    input [0:7] rising,
    input [31:16] high,
    input [3:-4] fixed,
    input [0:0] single,
    output [7:0] sum,
    output reg done,
    output [3:0] flipped
);
  localparam LIMIT = 200;
  parameter [7:0] OFFSET = 3;

  reg [7:0] state;
  wire [3:0] narrow;
  wire [11:0] broad;
  wire wrap_narrow, wrap_broad;
  wire \bus.valid ;
  wire \lane[2] ;
  integer steps;
  integer i;
  genvar g;

  function [7:0] mix(input [7:0] a, input [7:0] b);
    reg [7:0] partial;
    begin
      partial = a ^ b;
      mix = partial + 1;
    end
  endfunction

  task advance;
    input [7:0] by;
    begin
      state = state + by;
    end
  endtask

  counter u_narrow (.clk(clk), .rst(rst), .value(narrow), .wrap(wrap_narrow));
  counter #(.WIDTH(12), .STEP(3)) u_broad (clk, rst, broad, wrap_broad);
  inverter u_inv[3:0] (.a(narrow), .y(flipped));
  inverter u_pair[0:1] (.a(rising[0:1]), .y({\bus.valid , \lane[2] }));

  assign sum = mix(rising, high[23:16]) + fixed + OFFSET + {7'b0, single};

  always @(posedge clk) begin : work
    reg [3:0] scratch;
    scratch = state[3:0];
    if (rst) steps <= 0;
    else steps <= steps + scratch;
    for (i = 0; i < 8; i = i + 1)
      state[i] <= rising[i] & \bus.valid & \lane[2] ;
    done <= wrap_narrow | wrap_broad | (state > LIMIT) | broad[0];
    if (steps[31]) advance(1);
  end
endmodule
