// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Interfaces inside of a design.

interface stream_if #(parameter int W = 8) (input logic clk);
  logic [W-1:0] data;
  logic valid;
  logic ready;
  modport source (output data, valid, input ready, clk);
  modport sink (input data, valid, clk, output ready);
endinterface

module producer (stream_if.source out, input logic [7:0] seed);
  assign out.data = seed + 8'd1;
  assign out.valid = |seed;
endmodule

module consumer (stream_if.sink in, output logic [7:0] result);
  always_ff @(posedge in.clk) if (in.valid) result <= in.data;
  assign in.ready = 1'b1;
endmodule

module streams (input logic clk, input logic [7:0] seed, output logic [7:0] result, output logic stalled);
  stream_if #(.W(8)) link (.clk(clk));
  producer u_producer (.out(link), .seed(seed));
  consumer u_consumer (.in(link), .result(result));
  assign stalled = link.valid & ~link.ready;
endmodule
