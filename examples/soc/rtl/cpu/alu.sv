// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Arithmetic and logic; the adder is a ripple of four-bit slices.
module alu
    import soc_pkg::*;
(
    input  op_e        op,
    input  word_t      a,
    input  word_t      b,
    input  logic [5:0] imm,
    input  logic [8:0] wide_imm,
    output word_t      result,
    output logic       zero
);

    localparam int unsigned SLICES = DATA_WIDTH / 4;

    wire                subtract = op == OP_SUB;
    word_t              operand;
    logic [SLICES:0]    carry;
    logic [SLICES-1:0][3:0] sum;

    always_comb
        case (op)
            OP_ADD, OP_SUB: operand = b ^ {DATA_WIDTH{subtract}};
            default:        operand = {{10{imm[5]}}, imm};
        endcase

    assign carry[0] = subtract;

    for (genvar i = 0; i < SLICES; i++) begin : g_slice
        wire [3:0] slice_a = a[4*i +: 4];
        wire [3:0] slice_b = operand[4*i +: 4];

        adder_slice #(.WIDTH(4)) u_add (
            .a   (slice_a),
            .b   (slice_b),
            .cin (carry[i]),
            .sum (sum[i]),
            .cout(carry[i+1])
        );
    end

    always_comb
        case (op)
            OP_LI:   result = {{7{wide_imm[8]}}, wide_imm};
            OP_LUI:  result = {wide_imm, 7'b0};
            OP_AND:  result = a & b;
            OP_OR:   result = a | b;
            OP_XOR:  result = a ^ b;
            OP_SHR:  result = a >> imm[3:0];
            default: result = sum;
        endcase

    assign zero = result == '0;

endmodule
