// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Pins: inputs are synchronised and debounced one by one.
module gpio #(
    parameter INPUTS  = 4,
    parameter OUTPUTS = 8
) (
    input  wire               clk,
    input  wire               rst,
    input  wire               bus_valid,
    input  wire               bus_write,
    input  wire [15:0]        bus_wdata,
    output wire [15:0]        bus_rdata,
    output wire               bus_ready,
    input  wire [INPUTS-1:0]  pins_in,
    output reg  [OUTPUTS-1:0] pins_out
);

    wire [INPUTS-1:0] stable;
    genvar i;

    generate
        for (i = 0; i < INPUTS; i = i + 1) begin : g_pin
            debounce #(.CYCLES_LG(4)) u_debounce (
                .clk(clk), .rst(rst), .raw(pins_in[i]), .stable(stable[i])
            );
        end
    endgenerate

    always @(posedge clk)
        if (rst)
            pins_out <= {OUTPUTS{1'b0}};
        else if (bus_valid && bus_write)
            pins_out <= bus_wdata[OUTPUTS-1:0];

    assign bus_rdata = {{(16-INPUTS){1'b0}}, stable};
    assign bus_ready = bus_valid;

endmodule
