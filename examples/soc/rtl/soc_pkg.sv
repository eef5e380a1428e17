// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// What the whole system shares: words, the bus, the memory map and the instruction set.
package soc_pkg;

    localparam int unsigned DATA_WIDTH = 16;
    typedef logic [DATA_WIDTH-1:0] word_t;

    // The bus: one word a transfer; `valid` is held until `ready` answers.
    typedef struct packed {
        logic  valid;
        logic  write;
        word_t addr;
        word_t data;
    } bus_req_t;

    typedef struct packed {
        logic  ready;
        word_t data;
    } bus_rsp_t;

    // The upper four address bits choose the slave.
    localparam int unsigned SLAVES     = 5;
    localparam int unsigned SLAVE_RAM   = 0;
    localparam int unsigned SLAVE_UART  = 1;
    localparam int unsigned SLAVE_TIMER = 2;
    localparam int unsigned SLAVE_GPIO  = 3;
    localparam int unsigned SLAVE_FIR   = 4;

    typedef enum logic [3:0] {
        OP_NOP  = 4'h0,
        OP_LI   = 4'h1,  // rd = {ra, imm}, signed
        OP_LUI  = 4'h2,  // rd = {ra, imm} << 7
        OP_ADD  = 4'h3,  // rd = ra op rb, rb stands in imm[2:0]
        OP_SUB  = 4'h4,
        OP_AND  = 4'h5,
        OP_OR   = 4'h6,
        OP_XOR  = 4'h7,
        OP_SHR  = 4'h8,  // rd = ra >> imm[3:0]
        OP_ADDI = 4'h9,  // rd = ra + imm, signed
        OP_LD   = 4'hA,  // rd = memory[ra + imm]
        OP_ST   = 4'hB,  // memory[ra + imm] = rd
        OP_BEQZ = 4'hC,  // if rd is zero, go to pc + {ra, imm}
        OP_BNEZ = 4'hD,
        OP_JAL  = 4'hE,  // rd = pc + 1, go to ra
        OP_HALT = 4'hF
    } op_e;

    typedef struct packed {
        op_e        op;
        logic [2:0] rd;
        logic [2:0] ra;
        logic [5:0] imm;
    } instr_t;

    typedef enum logic [1:0] {
        ST_FETCH   = 2'd0,
        ST_EXECUTE = 2'd1,
        ST_MEMORY  = 2'd2,
        ST_HALT    = 2'd3
    } state_e;

endpackage
