// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// What can be high impedance, and what is pulled.

module pad_cell (inout pin, input drive, input low, output sense);
  assign pin = low ? 1'b0 : 1'bz;
  bufif1 (pin, 1'b1, drive);
  assign sense = pin;
endmodule

module pads (
    inout scl,
    inout [1:0] bus,
    input [3:0] d,
    output open_drain,
    output open_source,
    output tri [1:0] slice,
    output gated,
    output not_tri,
    output sensed
);
  wire shared;
  wire pulled_only;
  wire pulled_down;
  wire pulled_driven;
  wire pulled_tri;
  wire [3:0] nested_tri;
  wire is_floating;
  tri1 feeble;

  assign scl = d[0] ? 1'b0 : 1'bz;
  assign bus = d[1] ? d[3:2] : 2'bz;
  assign open_drain = d[0] ? 1'bz : 1'b0;
  assign open_source = d[1] ? 1'b1 : 1'bz;
  assign slice[0] = d[2] ? d[0] : 1'bz;
  assign slice[1] = d[1];
  bufif0 (gated, d[0], d[1]);
  assign shared = d[0] ? d[1] : 1'bz;
  assign shared = d[0] ? 1'bz : d[2];
  pullup (pulled_only);
  pulldown (pulled_down);
  pullup (pulled_driven);
  assign pulled_driven = d[3];
  pullup (pulled_tri);
  assign pulled_tri = d[3] ? 1'b0 : 1'bz;
  assign nested_tri = d[0] ? {2'b01, d[1] ? 2'b00 : 2'bzz} : 4'bz;
  assign is_floating = (bus[0] === 1'bz) & d[0] | (scl === 1'bz);
  assign feeble = d[0];
  assign not_tri = shared ^ pulled_only ^ pulled_down ^ pulled_driven ^ pulled_tri ^ ^nested_tri ^ is_floating ^ feeble;
  pad_cell u_pad (.pin(scl), .drive(d[0]), .low(d[1]), .sense(sensed));
endmodule
