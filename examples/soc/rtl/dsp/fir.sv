// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// A symmetric filter. Writing register 0 shifts a sample in, register 1 reads the answer.
module fir
    import soc_pkg::*;
#(
    parameter int unsigned TAPS = 8
) (
    input  logic     clk,
    input  logic     rst,
    input  bus_req_t req,
    output bus_rsp_t rsp
);

    localparam logic [7:0][7:0] COEFFICIENTS = {8'd1, 8'd4, 8'd9, 8'd18, 8'd18, 8'd9, 8'd4, 8'd1};

    logic signed [TAPS-1:0][DATA_WIDTH-1:0] delay_line;
    logic        [TAPS-1:0][23:0]           products;
    logic        [23:0]                     total;
    wire                                    shift = req.valid && req.write && req.addr[0] == 1'b0;

    always_ff @(posedge clk)
        if (rst)
            delay_line <= '0;
        else if (shift)
            delay_line <= {delay_line[TAPS-2:0], req.data};

    for (genvar t = 0; t < TAPS; t++) begin : g_tap
        multiplier #(.A_WIDTH(DATA_WIDTH), .B_WIDTH(8)) u_mul (
            .clk    (clk),
            .a      (delay_line[t]),
            .b      (COEFFICIENTS[t % 8]),
            .product(products[t])
        );
    end

    always_comb begin
        total = '0;
        for (int t = 0; t < TAPS; t++)
            total += products[t];
    end

    assign rsp.data  = total[21:6];
    assign rsp.ready = req.valid;

endmodule
