// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Lets the program run and checks what leaves the UART and lights the LEDs.
module tb_soc;

    localparam int unsigned DIVISOR = 32;

    logic       clk = 1'b0;
    logic       rst_n = 1'b0;
    logic [3:0] keys = 4'b0000;
    wire        uart_line;
    wire  [7:0] leds;
    wire        halted;

    always #18 clk = ~clk;

    soc_top #(.CLOCK_HZ(32), .BAUD(1)) dut (
        .clk_in (clk),
        .rst_n  (rst_n),
        .keys   (keys),
        .uart_rx(1'b1),
        .uart_tx(uart_line),
        .leds   (leds),
        .halted (halted)
    );

    logic [7:0] received;
    int         bytes = 0;

    // Samples each bit in its middle.
    initial
        forever begin
            @(negedge uart_line);
            repeat (DIVISOR + DIVISOR / 2) @(posedge clk);
            for (int i = 0; i < 8; i++) begin
                received[i] = uart_line;
                repeat (DIVISOR) @(posedge clk);
            end
            if (uart_line !== 1'b1)
                $fatal(1, "no stop bit");
            bytes = bytes + 1;
        end

    initial begin
        repeat (4) @(posedge clk);
        rst_n = 1'b1;
        keys  = 4'b1111;
        repeat (20000) @(posedge clk);
        // 15 through a filter of gain 64, whose answer is divided by 64.
        if (leds !== 8'd15)
            $fatal(1, "the LEDs show %0d", leds);
        if (bytes < 16 || received !== 8'd15)
            $fatal(1, "%0d bytes received, the last is %0d", bytes, received);
        $display("passed: %0d bytes", bytes);
        $finish;
    end

endmodule
