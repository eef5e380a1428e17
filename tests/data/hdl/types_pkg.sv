// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

package frame_pkg;
  localparam int LEN_BITS = 12;
  typedef enum logic [1:0] {IDLE, HEADER, BODY, CHECK} phase_t;
  typedef enum logic {OFF, ON} switch_t;
  typedef logic flag_t;
  typedef logic [3:0] nibble_t;
  typedef struct packed {
    logic [LEN_BITS-1:0] len;
    phase_t phase;
    switch_t enabled;
    flag_t last;
  } header_t;
  typedef struct packed {
    header_t header;
    nibble_t [1:0] tag;
  } frame_t;
  typedef union packed {
    logic [7:0] raw;
    nibble_t [1:0] half;
  } byte_t;
  typedef struct {
    logic [7:0] a;
    logic b;
    logic [3:0] table_of [0:2];
  } loose_t;
endpackage
