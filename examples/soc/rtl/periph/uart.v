// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

`include "soc_regs.vh"

// A UART with a FIFO in each direction.
module uart #(
    parameter DIVISOR = 312,
    parameter FIFO_LG = `UART_FIFO_LG
) (
    input  wire        clk,
    input  wire        rst,
    input  wire        bus_valid,
    input  wire        bus_write,
    input  wire [3:0]  bus_addr,
    input  wire [15:0] bus_wdata,
    output reg  [15:0] bus_rdata,
    output wire        bus_ready,
    input  wire        rx,
    output wire        tx
);

    wire       tick;
    wire       tx_full, tx_empty, tx_busy;
    wire       rx_full, rx_empty;
    wire [7:0] tx_head, rx_head, rx_byte;
    wire       rx_strobe, rx_error;

    wire at_data  = bus_valid && bus_addr == `UART_DATA;
    wire tx_push  = at_data && bus_write && !tx_full;
    wire rx_pop   = at_data && !bus_write && !rx_empty;
    wire tx_start = !tx_empty && !tx_busy;

    baud_gen #(.DIVISOR(DIVISOR / 16)) u_baud (.clk(clk), .rst(rst), .tick(tick));

    fifo #(.WIDTH(8), .LG(FIFO_LG)) u_tx_fifo (
        .clk(clk), .rst(rst),
        .push(tx_push), .wdata(bus_wdata[7:0]),
        .pop(tx_start), .rdata(tx_head),
        .full(tx_full), .empty(tx_empty)
    );

    uart_tx u_tx (
        .clk(clk), .rst(rst), .tick(tick),
        .start(tx_start), .data(tx_head),
        .busy(tx_busy), .tx(tx)
    );

    uart_rx u_rx (
        .clk(clk), .rst(rst), .tick(tick), .rx(rx),
        .data(rx_byte), .strobe(rx_strobe), .error(rx_error)
    );

    fifo #(.WIDTH(8), .LG(FIFO_LG)) u_rx_fifo (
        .clk(clk), .rst(rst),
        .push(rx_strobe && !rx_full), .wdata(rx_byte),
        .pop(rx_pop), .rdata(rx_head),
        .full(rx_full), .empty(rx_empty)
    );

    reg overrun;
    always @(posedge clk)
        if (rst)
            overrun <= 1'b0;
        else if (rx_error || (rx_strobe && rx_full))
            overrun <= 1'b1;

    always @*
        case (bus_addr)
            `UART_DATA:   bus_rdata = {8'b0, rx_head};
            `UART_STATUS: bus_rdata = {11'b0, overrun, rx_full, rx_empty, tx_full, tx_empty};
            default:      bus_rdata = 16'b0;
        endcase

    // A full transmit FIFO holds the bus until there is room.
    assign bus_ready = bus_valid && !(at_data && bus_write && tx_full);

endmodule
