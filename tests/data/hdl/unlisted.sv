// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// What is declared like a net and is none, beside nets of the same names.

package limits;
  localparam int DEPTH = 3;
  typedef enum logic [1:0] {IDLE, RUN} state_t;
  int shared_counter;
endpackage

primitive either (out, a, b);
  output out;
  input a, b;
  table
    0 0 : 0;
    1 ? : 1;
    ? 1 : 1;
  endtable
endprimitive

`define HIDDEN(name) module name (input logic [1:0] a, output logic [1:0] y); \
  genvar k; \
  generate for (k = 0; k < 2; k = k + 1) begin : g assign y[k] = a[k]; end endgenerate \
endmodule
`HIDDEN(hidden)

module loop (input logic [1:0] a, output logic [1:0] y);
  genvar index;
  generate
    for (index = 0; index < 2; index = index + 1) begin : g
      assign y[index] = a[index];
    end
  endgenerate
endmodule

module unlisted
  import limits::*;
#(
    parameter WIDTH = 4,
    parameter type T = logic [1:0]
) (
    input logic clk,
    input T a,
    output T y,
    output logic z
);
  localparam HALF = WIDTH / 2;
  real level;
  realtime moment;
  string label;
  event tick;
  int queue [$];
  int dynamic [];
  int by_name [string];
  mailbox #(int) box;
  chandle pointer;
  integer index;
  state_t by_enum = RUN;
  logic [3:0] by_parameter;
  logic [3:0] by_package;
  logic always_one;
  logic only_started;
  logic inner;

  assign by_parameter = WIDTH + HALF;
  assign by_package = DEPTH;
  initial only_started = 1'b1;
  always_ff @(posedge clk) always_one <= 1'b1;

  function automatic logic pick(input logic [1:0] v, input int inner);
    logic unlisted_local;
    unlisted_local = v[0];
    return unlisted_local & inner[0];
  endfunction
  task automatic nothing(output logic inner);
    inner = 1'b0;
  endtask

  always_comb begin : process
    logic [7:0] inner;
    inner = {6'b0, a};
    z = inner[0] ^ pick(a, 1);
  end
  clocking block @(posedge clk);
    input a;
    output y;
  endclocking
  either u_either (inner, a[0], a[1]);
  loop u_loop (.a(a), .y(y));
  // synthesis translate_off
  logic simulated;
  assign simulated = a[0];
  // synthesis translate_on
  hidden u_hidden (.a({inner, always_one}), .y());
endmodule
