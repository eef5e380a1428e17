// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Arrays of two dimensions in every direction, arrays of structures, ports that are arrays, arrays of instances.

typedef struct packed {
  logic valid;
  logic [1:0][3:0] nibbles;
} entry_t;

typedef enum logic {RED, GREEN} colour_t;

module lane_unit (
    input logic clk,
    input logic [1:0][3:0] in,
    output logic [1:0][3:0] out,
    output entry_t last
);
  always_ff @(posedge clk) begin
    out <= in;
    last.valid <= |in;
    last.nibbles <= out;
  end
endmodule

module store (
    input logic clk,
    input logic [7:0] words_in [0:1],
    output logic [7:0] words_out [2]
);
  always_ff @(posedge clk) words_out <= words_in;
endmodule

module arrays (
    input logic clk,
    input logic [3:0] d,
    output logic [0:7] q,
    output logic [31:16] upper,
    output logic [-1:-4] below,
    output logic single
);
  logic [1:0][7:0] down;
  logic [0:1][0:7] up;
  logic [-1:0][3:-4] signed_bounds;
  logic [1:0][2:0][1:0] cube;
  bit [2:0][0:0] thin;
  logic [7:0] plain [0:3];
  logic [1:0][7:0] both [3:0][0:1];
  logic flags [4];
  entry_t entries [1:0];
  entry_t [2:1] packed_entries;
  enum logic [2:0] {A, B = 5} states [0:1];
  colour_t [1:0] colours;
  int counts [-1:1];
  entry_t lasts;
  logic [1:0][3:0] spare;
  entry_t spare_last;
  logic [7:0] w_in [0:1];
  logic [7:0] w_out [2];

  lane_unit u_lane (.clk, .in(down[0]), .out(spare), .last(lasts));
  lane_unit u_lanes [1:0] (.clk(clk), .in(down), .out(packed_entries[1].nibbles), .last());
  store u_store (.clk, .words_in(w_in), .words_out(w_out));

  always_comb begin
    down = {2{d, ~d}};
    up[0] = down[1];
    up[1] = down[0];
    signed_bounds[-1] = up[0];
    signed_bounds[0] = up[1];
    cube[0][2] = d[1:0];
    cube[1] = {d[2:0], d[2:0]};
    thin = {d[0], d[1], d[2]};
    spare_last = lasts;
    w_in[0] = signed_bounds[0];
    w_in[1] = {2'b0, cube[0]};
  end
  always_ff @(posedge clk) begin
    plain[d[1:0]] <= w_out[0];
    both[0][1][1] <= plain[0];
    flags[d[1:0]] <= thin[1][0];
    entries[0] <= spare_last;
    packed_entries[2] <= entries[1];
    states[0] <= states[1] == A ? B : A;
    colours[0] <= d[0] ? RED : GREEN;
    counts[-1] <= counts[0] + 1;
  end
  assign q = both[1][0][0] ^ spare;
  assign upper = {8'b0, packed_entries[2].nibbles};
  assign below = {flags[0], states[0]};
  assign single = ^counts[1] ^ colours[1];
endmodule
