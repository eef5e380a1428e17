// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Generate constructs in each other, arrays of instances in them, parameters from everywhere, names with odd letters.

module window #(parameter HIGH = 3, parameter LOW = -4) (
    input [HIGH:LOW] in,
    output [LOW:HIGH] out,
    output [-1:-2] pair
);
  wire [HIGH-LOW:0] copy;
  assign copy = in;
  assign out = copy;
  assign pair = in[LOW+1:LOW];
endmodule

module cell1 (input i, output o);
  parameter INVERT = 0;
  wire both;
  assign both = INVERT ? ~i : i;
  assign o = both;
endmodule

module nested #(parameter ROWS = 2, parameter COLS = 2, parameter [1:0] MODE = 2) (
    input clk,
    input [3:0] d,
    output [3:0] q,
    output [7:0] r,
    output odd
);
  genvar row, col;
  generate
    for (row = 0; row < ROWS; row = row + 1) begin : g_row
      wire [COLS-1:0] line;
      for (col = 0; col < COLS; col = col + 1) begin : g_col
        if ((row + col) % 2 == 0) begin : g_even
          wire x;
          cell1 u_cell (.i(d[row*COLS+col]), .o(x));
          assign line[col] = x;
        end else begin : g_odd
          reg x;
          always @(posedge clk) x <= d[row*COLS+col];
          cell1 #(.INVERT(1)) u_cell (.i(x), .o(line[col]));
        end
      end
      case (MODE)
        0: begin : g_none
          assign q[row*COLS+:COLS] = line;
        end
        1, 2: begin : g_pair
          cell1 u_pair[COLS-1:0] (.i(line), .o(q[row*COLS+:COLS]));
        end
        default: begin : g_rest
          assign q[row*COLS+:COLS] = 0;
        end
      endcase
    end
  endgenerate

  // Blocks without names: this is the second construct of the module, in it the loop is the first and the rest second.
  generate
    if (MODE == 2) begin
      wire lone;
      wire [2:1] middle;
      assign lone = ^d;
      for (col = 1; col < 3; col = col + 1) begin
        wire inner;
        assign inner = lone & d[col];
        assign middle[col] = inner;
      end
      if (ROWS > 1) begin
        wire deepest;
        assign deepest = ^middle;
        assign odd = deepest;
      end
    end
  endgenerate

  wire \slash/in.name ;
  wire [1:0] \[bracket] ;
  wire [0:1] \quoted"'<&>; ;
  wire \$dollar ;
  wire \-+*%@!~^|=?,(){}:# ;
  wire \plain ;
  wire \wire ;
  wire [2:0] \back\slash ;
  wire \a.b , \a.b.c ;

  assign \slash/in.name = d[0];
  assign \[bracket] = {\slash/in.name , d[1]};
  assign \quoted"'<&>; = \[bracket] ;
  assign \$dollar = \quoted"'<&>; [0];
  assign \-+*%@!~^|=?,(){}:# = \$dollar ;
  assign plain = \-+*%@!~^|=?,(){}:# ;
  assign \wire = \plain ;
  assign \back\slash = {3{\wire }};
  assign \a.b = \back\slash [2];
  assign \a.b.c = \a.b ;

  wire [7:0] r0, r1;
  wire [1:0] p0, p1, p2;
  wire [5:0] r2;
  window \u/odd.name  (.in({d, d}), .out(r0), .pair(p0));
  window #(.HIGH(-2), .LOW(-9)) u_below (.in(r0), .out(r1), .pair(p1));
  window u_set (.in(r1[5:0]), .out(r2), .pair(p2));
  defparam u_set.HIGH = 2, u_set.LOW = -3;
  assign r = r1 ^ r2 ^ {p0, p1, p2, \a.b.c , 1'b0};
endmodule
