-- SPDX-FileCopyrightText: 2026 The RtlVakIns authors
-- SPDX-License-Identifier: Apache-2.0

-- Users come before what they use, and an entity apart from its architecture.

library ieee;
use ieee.std_logic_1164.all;

architecture Wood of Drawer is
  signal Handle : std_logic;
begin
  Handle <= Open_It and Clk;
  Full <= Handle;
end architecture Wood;

library ieee;
use ieee.std_logic_1164.all;
library base;
use base.sizes;

entity Plate is
  port (Clk : in std_logic; Text : in sizes.Slot_T);
end Plate;

architecture Brass of Plate is
  signal Engraved : Sizes.slot_t;
begin
  Engraved <= Text when rising_edge(Clk);
end Brass;
