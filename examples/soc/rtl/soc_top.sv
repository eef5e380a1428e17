// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// A small system: a 16-bit processor and five slaves on one bus, clocked by the device's PLL.
module soc_top
    import soc_pkg::*;
#(
    parameter int unsigned CLOCK_HZ = 36_000_000,
    parameter int unsigned BAUD     = 115_200,
    parameter              BOOT     = "rtl/cpu/boot.hex"
) (
    input  logic       clk_in,   // 27 MHz from the board
    input  logic       rst_n,    // push button, active low
    input  logic [3:0] keys,
    input  logic       uart_rx,
    output logic       uart_tx,
    output logic [7:0] leds,
    output logic       halted
);

    logic clk;
    logic pll_locked;
    logic rst;

    // A primitive of the device; its model comes with the maker's tools, not with this design.
    KX_PLL #(
        .MULTIPLY(4),
        .DIVIDE  (3)
    ) u_pll (
        .CLKIN (clk_in),
        .CLKOUT(clk),
        .LOCK  (pll_locked)
    );

    reset_sync #(.STAGES(3)) u_reset (
        .clk    (clk),
        .async_n(rst_n & pll_locked),
        .rst    (rst)
    );

    bus_req_t              cpu_req;
    bus_rsp_t              cpu_rsp;
    bus_req_t [SLAVES-1:0] slave_req;
    bus_rsp_t [SLAVES-1:0] slave_rsp;
    logic     [3:0]        timer_irq;

    cpu #(.BOOT(BOOT)) u_cpu (
        .clk   (clk),
        .rst   (rst),
        .irq   (|timer_irq),
        .req   (cpu_req),
        .rsp   (cpu_rsp),
        .halted(halted)
    );

    bus_fabric #(.PORTS(SLAVES)) u_bus (
        .clk      (clk),
        .rst      (rst),
        .req      (cpu_req),
        .rsp      (cpu_rsp),
        .slave_req(slave_req),
        .slave_rsp(slave_rsp)
    );

    data_ram #(.DEPTH(1024)) u_ram (
        .clk(clk),
        .req(slave_req[SLAVE_RAM]),
        .rsp(slave_rsp[SLAVE_RAM])
    );

    uart #(
        .DIVISOR(CLOCK_HZ / BAUD)
    ) u_uart (
        .clk      (clk),
        .rst      (rst),
        .bus_valid(slave_req[SLAVE_UART].valid),
        .bus_write(slave_req[SLAVE_UART].write),
        .bus_addr (slave_req[SLAVE_UART].addr[3:0]),
        .bus_wdata(slave_req[SLAVE_UART].data),
        .bus_rdata(slave_rsp[SLAVE_UART].data),
        .bus_ready(slave_rsp[SLAVE_UART].ready),
        .rx       (uart_rx),
        .tx       (uart_tx)
    );

    timer #(
        .CHANNELS(4),
        .WIDTH   (24)
    ) u_timer (
        .clk(clk),
        .rst(rst),
        .req(slave_req[SLAVE_TIMER]),
        .rsp(slave_rsp[SLAVE_TIMER]),
        .irq(timer_irq)
    );

    gpio #(
        .INPUTS (4),
        .OUTPUTS(8)
    ) u_gpio (
        .clk      (clk),
        .rst      (rst),
        .bus_valid(slave_req[SLAVE_GPIO].valid),
        .bus_write(slave_req[SLAVE_GPIO].write),
        .bus_wdata(slave_req[SLAVE_GPIO].data),
        .bus_rdata(slave_rsp[SLAVE_GPIO].data),
        .bus_ready(slave_rsp[SLAVE_GPIO].ready),
        .pins_in  (keys),
        .pins_out (leds)
    );

    fir #(.TAPS(8)) u_fir (
        .clk(clk),
        .rst(rst),
        .req(slave_req[SLAVE_FIR]),
        .rsp(slave_rsp[SLAVE_FIR])
    );

endmodule
