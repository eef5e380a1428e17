-- SPDX-FileCopyrightText: 2026 The RtlVakIns authors
-- SPDX-License-Identifier: Apache-2.0

library ieee;
use ieee.std_logic_1164.all;

package Sizes is
  constant Slots : positive;
  subtype Slot_T is std_logic_vector(2 downto 0);
end package;

package body Sizes is
  constant Slots : positive := 3;
end package body;
