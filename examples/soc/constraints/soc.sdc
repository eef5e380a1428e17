# SPDX-FileCopyrightText: 2026 The RtlVakIns authors
# SPDX-License-Identifier: Apache-2.0

create_clock -name clk_in -period 37.037 [get_ports {clk_in}]
create_generated_clock -name clk -source [get_ports {clk_in}] -multiply_by 4 -divide_by 3 [get_nets {clk}]
set_false_path -from [get_ports {rst_n keys[*]}]
