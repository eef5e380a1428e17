// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Channels that count up to a limit each. Registers: 2n starts channel n, 2n+1 is its limit; 8 acknowledges.
module timer
    import soc_pkg::*;
#(
    parameter int unsigned CHANNELS = 4,
    parameter int unsigned WIDTH    = 24
) (
    input  logic                clk,
    input  logic                rst,
    input  bus_req_t            req,
    output bus_rsp_t            rsp,
    output logic [CHANNELS-1:0] irq
);

    localparam logic [3:0] ACKNOWLEDGE = 4'd8;

    logic [CHANNELS-1:0][WIDTH-1:0] count;
    logic [CHANNELS-1:0]            running;
    wire                            write = req.valid && req.write;

    for (genvar n = 0; n < CHANNELS; n++) begin : g_channel
        logic [WIDTH-1:0] limit;
        wire              wrap = running[n] && count[n] == limit;

        always_ff @(posedge clk)
            if (rst) begin
                count[n]   <= '0;
                limit      <= '1;
                running[n] <= 1'b0;
                irq[n]     <= 1'b0;
            end else begin
                if (running[n])
                    count[n] <= wrap ? '0 : count[n] + 1'b1;
                if (write && req.addr[3:0] == 4'(2 * n))
                    running[n] <= req.data[0];
                if (write && req.addr[3:0] == 4'(2 * n + 1))
                    limit <= WIDTH'(req.data);
                if (wrap)
                    irq[n] <= 1'b1;
                else if (write && req.addr[3:0] == ACKNOWLEDGE && req.data[n])
                    irq[n] <= 1'b0;
            end
    end

    assign rsp.data  = DATA_WIDTH'({irq, running});
    assign rsp.ready = req.valid;

endmodule
