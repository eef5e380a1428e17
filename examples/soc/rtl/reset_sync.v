// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Asserts the reset at once and releases it in step with the clock.
module reset_sync #(
    parameter STAGES = 2
) (
    input  wire clk,
    input  wire async_n,
    output wire rst
);

    reg [STAGES-1:0] chain;

    always @(posedge clk or negedge async_n)
        if (!async_n)
            chain <= {STAGES{1'b1}};
        else
            chain <= {chain[STAGES-2:0], 1'b0};

    assign rst = chain[STAGES-1];

endmodule
