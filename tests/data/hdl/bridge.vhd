-- SPDX-FileCopyrightText: 2026 The RtlVakIns authors
-- SPDX-License-Identifier: Apache-2.0

-- A VHDL top with Verilog inside of it (bridge_parts.v), and VHDL inside of that.

entity Bridge is
  port (Clk : in bit; Lamp : out bit);
end entity;

architecture Top of Bridge is
  component arch_stone is
    generic (WIDTH : integer := 2);
    port (clk : in bit; lit : out bit);
  end component;
begin
  Left_Side : arch_stone port map (clk => Clk, lit => Lamp);
end architecture;

entity Lantern is
  port (Clk : in bit; Lit : out bit);
end entity;

architecture Iron of Lantern is
  signal Flame : bit;
begin
  Flame <= Clk;
  Lit <= Flame;
end architecture;
