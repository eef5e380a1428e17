// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Packages, functions and processes with variables of their own, generate constructs with inline genvars, escaped names.

package maths;
  parameter int WIDTH = 6;
  typedef logic [WIDTH-1:0] value_t;
  typedef enum logic [1:0] {LOW, MID, TOP_MOST} rank_t;
  function automatic value_t twice(input value_t x);
    value_t doubled;
    doubled = x + x;
    return doubled;
  endfunction
endpackage

package shapes;
  import maths::value_t;
  typedef struct packed {
    value_t x;
    value_t y;
  } point_t;
  typedef union packed {
    point_t point;
    logic [11:0] raw;
  } either_t;
endpackage

module adder
  import maths::*;
#(
    parameter type T = value_t,
    parameter int N = 1
) (
    input T a,
    input T b,
    output T total,
    output logic [N-1:-1] flags
);
  localparam int HALF = $bits(T) / 2;
  T half;
  assign half = twice(a) >> HALF;
  assign total = half + b;
  assign flags = '{default: ^total};
endmodule

module scopes (
    input logic clk,
    input maths::value_t in,
    output shapes::either_t out,
    output maths::rank_t rank,
    output logic \out.end
);
  import maths::*;
  shapes::point_t here;
  logic [1:0] \bus[1:0] ;
  wire logic \a/b = in[0];
  var logic counted;
  const logic fixed_one = 1'b1;
  static int runs;
  value_t sums [2];

  function automatic logic [3:0] fold(logic [3:0] v);
    logic [3:0] inner;
    inner = v ^ {v[0], v[3:1]};
    return inner;
  endfunction

  for (genvar g = 0; g < 2; g++) begin : g_add
    value_t local_sum;
    logic [1:-1] local_flags;
    adder #(.N(2)) u_add (.a(in), .b(here.x), .total(local_sum), .flags(local_flags));
    if (g == 0) begin
      logic chosen;
      assign chosen = local_flags[-1];
      assign \bus[1:0] [0] = chosen;
    end else begin : g_other
      logic chosen;
      always_comb chosen = local_flags[1];
      assign \bus[1:0] [1] = chosen;
    end
  end
  if (WIDTH > 4) begin : g_wide
    adder #(.T(logic [2:0])) u_narrow (.a(in[2:0]), .b(in[5:3]), .total(), .flags());
  end

  always_ff @(posedge clk) begin : count
    automatic logic [3:0] scratch;
    int again;
    scratch = fold(in[3:0]);
    for (int i = 0; i < 4; i++) counted <= scratch[i] ^ counted ^ \a/b ;
    again = runs + 1;
    runs <= again;
    here.x <= g_add[0].local_sum;
    here.y <= g_add[1].local_sum & {WIDTH{fixed_one}};
    sums[0] <= here.y;
    unique case (rank)
      LOW: rank <= MID;
      MID: rank <= TOP_MOST;
      default: rank <= LOW;
    endcase
  end
  assign out.raw = {sums[1], here.x} ^ runs[11:0];
  assign \out.end = counted ^ ^\bus[1:0] ;
endmodule
