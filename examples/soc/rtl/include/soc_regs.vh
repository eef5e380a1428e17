// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// Register addresses within the slaves that are written in Verilog-2001.
`ifndef SOC_REGS_VH
`define SOC_REGS_VH

`define UART_DATA   4'h0
`define UART_STATUS 4'h1

`endif
