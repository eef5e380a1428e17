// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

// What the slaves that are written in Verilog-2001 share.
`ifndef SOC_REGS_VH
`define SOC_REGS_VH

`define UART_DATA   4'h0
`define UART_STATUS 4'h1

// The FIFOs hold two to this power of bytes; a project may ask for more.
`ifndef UART_FIFO_LG
`define UART_FIFO_LG 4
`endif

`endif
