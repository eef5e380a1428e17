// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// The processor: one instruction in two cycles, three and more when it goes to the bus.
module cpu
    import soc_pkg::*;
#(
    parameter BOOT = "boot.hex"
) (
    input  logic     clk,
    input  logic     rst,
    input  logic     irq,
    output bus_req_t req,
    input  bus_rsp_t rsp,
    output logic     halted
);

    state_e      state;
    word_t       pc;
    word_t       next_pc;
    instr_t      instr;
    word_t       ra_data;
    word_t       rb_data;
    word_t       rd_data;
    word_t       alu_result;
    logic        alu_zero;
    word_t       write_data;
    logic        write_enable;
    logic        taken;
    logic [15:0] retired;

    boot_rom #(.FILE(BOOT), .DEPTH(256)) u_rom (
        .clk (clk),
        .addr(pc[7:0]),
        .data(instr)
    );

    regfile u_regs (
        .clk    (clk),
        .ra_addr(instr.ra),
        .rb_addr(instr.imm[2:0]),
        .rd_addr(instr.rd),
        .ra_data(ra_data),
        .rb_data(rb_data),
        .rd_data(rd_data),
        .write  (write_enable),
        .wdata  (write_data)
    );

    alu u_alu (
        .op      (instr.op),
        .a       (ra_data),
        .b       (rb_data),
        .imm     (instr.imm),
        .wide_imm({instr.ra, instr.imm}),
        .result  (alu_result),
        .zero    (alu_zero)
    );

    wire is_load   = instr.op == OP_LD;
    wire is_store  = instr.op == OP_ST;
    wire is_memory = is_load || is_store;
    wire is_alu    = instr.op >= OP_LI && instr.op <= OP_ADDI;

    always_comb begin
        unique case (instr.op)
            OP_BEQZ: taken = rd_data == '0;
            OP_BNEZ: taken = rd_data != '0;
            default: taken = 1'b0;
        endcase
        if (instr.op == OP_JAL)
            next_pc = ra_data;
        else if (taken)
            next_pc = pc + {{7{instr.ra[2]}}, instr.ra, instr.imm};
        else
            next_pc = pc + 1'b1;
    end

    // A bus access uses the adder for its address.
    assign req.valid = state == ST_MEMORY;
    assign req.write = is_store;
    assign req.addr  = alu_result;
    assign req.data  = rd_data;

    always_comb begin
        write_data = alu_result;
        if (is_load)
            write_data = rsp.data;
        else if (instr.op == OP_JAL)
            write_data = pc + 1'b1;
        write_enable = (state == ST_EXECUTE && (is_alu || instr.op == OP_JAL))
                    || (state == ST_MEMORY && is_load && rsp.ready);
    end

    always_ff @(posedge clk)
        if (rst) begin
            state   <= ST_FETCH;
            pc      <= '0;
            retired <= '0;
        end else
            case (state)
                ST_FETCH: state <= ST_EXECUTE;
                ST_EXECUTE:
                    if (instr.op == OP_HALT && !irq)
                        state <= ST_HALT;
                    else if (is_memory)
                        state <= ST_MEMORY;
                    else begin
                        pc      <= next_pc;
                        retired <= retired + 1'b1;
                        state   <= ST_FETCH;
                    end
                ST_MEMORY:
                    if (rsp.ready) begin
                        pc      <= next_pc;
                        retired <= retired + 1'b1;
                        state   <= ST_FETCH;
                    end
                ST_HALT:
                    if (irq) begin
                        pc    <= next_pc;
                        state <= ST_FETCH;
                    end
            endcase

    assign halted = state == ST_HALT;

    // Seen on an analyzer: the flag of the last result, and how far the program came.
    logic last_zero;
    always_ff @(posedge clk)
        if (state == ST_EXECUTE)
            last_zero <= alu_zero;

endmodule
