-- SPDX-FileCopyrightText: 2026 The RtlVakIns authors
-- SPDX-License-Identifier: Apache-2.0

-- The top of a design in three libraries; its parts are in shelf_parts.vhd (library Parts) and shelf_base.vhd (Base).

library ieee, Parts, Base;
use ieee.std_logic_1164.all;
use base.sizes.all;

entity Shelves is
  port (Clk : in std_logic; Wanted : in Slot_T; Found : out std_logic);
end entity Shelves;

architecture Top of Shelves is
  component Drawer is
    port (Clk : in std_logic; Open_It : in std_logic; Full : out std_logic);
  end component;
  signal Full : Slot_T;
begin
  G_Slot : for N in Full'range generate
    U_Drawer : Drawer port map (Clk => Clk, Open_It => Wanted(N), Full => Full(N));
  end generate;
  U_Label : entity Parts.Plate port map (Clk => Clk, Text => Full);
  Found <= Full(0);
end architecture Top;
