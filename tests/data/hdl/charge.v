// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Declarations that few tools read.

module charge (
    input [3:0] d,
    output q
);
  wire scalared [3:0] loose;
  wire vectored [3:0] tight;
  trireg held;
  trireg [1:0] faint;
  specparam DELAY = 3;
  assign loose = d;
  assign tight = ~d;
  assign held = d[0];
  assign faint = d[1:0];
  assign q = ^faint ^ ^loose ^ ^tight ^ held;
endmodule
