// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Interfaces inside of a design: arrays of them, in each other, with parameters and functions, in generate blocks;
// classes beside them.

interface word_if #(parameter int W = 4) (input logic clk);
  typedef logic [W-1:0] word_t;
  word_t word;
  logic [1:0][W-1:0] history;
  logic strobe;
  modport out (output word, strobe);
  modport in (input word, strobe, history);
  always_ff @(posedge clk) history <= {history[0], word};
  function automatic logic parity();
    return ^word;
  endfunction
endinterface

interface pair_if (input logic clk);
  word_if #(.W(2)) first (.clk(clk));
  word_if #(.W(3)) second (.clk(clk));
  logic joined;
  assign joined = first.strobe & second.strobe;
endinterface

module talker (word_if.out port, input logic [3:0] value);
  assign port.word = value;
  assign port.strobe = |value;
endmodule

module listener (word_if.in port, output logic heard);
  assign heard = port.strobe & port.word[0] & port.history[1][0];
endmodule

module links (input logic clk, input logic [3:0] value, output logic [1:0] heard, output logic extra);
  class counter;
    int n;
  endclass
  word_if wires [1:0] (.clk(clk));
  pair_if pair (.clk(clk));
  talker u_talker [1:0] (.port(wires), .value(value));
  listener u_high (.port(wires[1]), .heard(heard[1]));
  listener u_low (.port(wires[0]), .heard(heard[0]));
  for (genvar g = 0; g < 2; g++) begin : g_local
    word_if #(.W(g + 1)) own (.clk(clk));
    assign own.word = value[g:0];
    assign own.strobe = own.history[1][0];
  end
  counter counted;
  virtual word_if handle;
  initial counted = new;
  assign pair.first.word = value[1:0];
  assign pair.first.strobe = value[2];
  assign pair.second.word = value[3:1];
  assign pair.second.strobe = pair.first.history[1][0] ^ pair.second.history[0][1];
  assign extra = pair.joined ^ g_local[0].own.strobe;
endmodule
