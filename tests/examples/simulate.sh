#!/bin/bash
# SPDX-FileCopyrightText: 2026 The RtlVakIns authors
# SPDX-License-Identifier: Apache-2.0

# simulate.sh ROOT: the example design is real: it passes the linter without a word, and its program, run by its test
# bench, sends what it should.

set -euo pipefail
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$1/examples/soc"

# The package comes first; an include path and a model of the device's PLL are all that is needed besides.
design=(-Irtl/include rtl/soc_pkg.sv rtl/soc_top.sv rtl/reset_sync.v rtl/cpu/*v rtl/bus/*v rtl/dsp/*v rtl/periph/*v
    sim/kx_pll.v)
# Spare bits, the carry chain of a ripple adder and the primitive's name in capitals are meant.
meant=(-Wno-UNUSEDSIGNAL -Wno-UNUSEDPARAM -Wno-UNOPTFLAT -Wno-DECLFILENAME)

verilator --lint-only --timing -Wall "${meant[@]}" --top-module soc_top "${design[@]}"
verilator --binary --timing -Wno-UNOPTFLAT --timescale 1ns/1ps --top-module tb_soc --Mdir "$work" \
    "${design[@]}" sim/tb_soc.sv >"$work/log" ||
    { cat "$work/log"; exit 1; }
"$work/Vtb_soc" | tee "$work/output"
grep -q '^passed: ' "$work/output"
