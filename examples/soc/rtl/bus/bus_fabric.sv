// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// One master, many slaves: the upper four address bits choose; nobody there answers with zero.
module bus_fabric
    import soc_pkg::*;
#(
    parameter int unsigned PORTS = 4
) (
    input  logic                  clk,
    input  logic                  rst,
    input  bus_req_t              req,
    output bus_rsp_t              rsp,
    output bus_req_t [PORTS-1:0] slave_req,
    input  bus_rsp_t [PORTS-1:0] slave_rsp
);

    logic [PORTS-1:0]                 select;
    logic [PORTS-1:0][DATA_WIDTH-1:0] read_lane;
    logic [PORTS-1:0]                 ready_lane;
    logic [7:0]                        wait_cycles;

    for (genvar i = 0; i < PORTS; i++) begin : g_slave
        assign select[i]          = req.valid && req.addr[15:12] == 4'(i);
        assign slave_req[i].valid = select[i];
        assign slave_req[i].write = req.write;
        assign slave_req[i].addr  = {4'b0, req.addr[11:0]};
        assign slave_req[i].data  = req.data;
        assign read_lane[i]       = slave_rsp[i].data & {DATA_WIDTH{select[i]}};
        assign ready_lane[i]      = slave_rsp[i].ready & select[i];
    end

    always_comb begin
        rsp.data = '0;
        for (int i = 0; i < PORTS; i++)
            rsp.data |= read_lane[i];
        rsp.ready = |ready_lane || (req.valid && select == '0);
    end

    always_ff @(posedge clk)
        if (rst || !req.valid || rsp.ready)
            wait_cycles <= '0;
        else
            wait_cycles <= wait_cycles + 1'b1;

endmodule
