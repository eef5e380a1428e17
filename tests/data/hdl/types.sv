// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Types of SystemVerilog: structures, enumerations, arrays of more than one dimension.

module types
  import frame_pkg::*;
(
    input logic clk,
    input frame_t in,
    output frame_t out,
    output phase_t phase,
    output logic [1:0][7:0] lanes
);
  header_t [1:0] queue;
  byte_t shared;
  loose_t loose;
  switch_t power;
  flag_t [3:0] flags;
  logic [0:1][2:0][3:0] cube;
  logic [7:0] window [4];
  logic [2:0] table_2d [0:1][2];
  header_t history [0:3];
  int unsigned total;
  byte tiny;
  bit two_state;
  logic signed [4:0] offset;
  string label;
  real ratio;

  always_ff @(posedge clk) begin
    automatic int temporary = 3;
    out <= in;
    queue[1] <= in.header;
    queue[0] <= queue[1];
    shared.raw <= {in.tag[1], in.tag[0]};
    loose.a <= shared.half[0] + temporary[7:0];
    loose.b <= ^loose.a;
    loose.table_of[0] <= 4'd1;
    power <= power == ON ? OFF : ON;
    flags <= {flags[2:0], power};
    cube[0][1] <= flags;
    cube[1] <= cube[0];
    window[0] <= loose.a;
    table_2d[0][1] <= cube[1][2][2:0];
    history[0] <= in.header;
    total <= total + tiny + offset + two_state;
    tiny <= tiny + 8'd1;
    two_state <= ~two_state;
    offset <= -offset;
    case (phase)
      IDLE: phase <= HEADER;
      HEADER: phase <= BODY;
      default: phase <= IDLE;
    endcase
  end
  assign lanes = {window[1], total[7:0] ^ {5'b0, table_2d[1][0]} ^ {4'b0, loose.table_of[1]} ^ {7'b0, history[1].last} ^ cube[1][0] ^ {7'b0, loose.b}};
endmodule
