-- SPDX-FileCopyrightText: 2026 The RtlVakIns authors
-- SPDX-License-Identifier: Apache-2.0

library ieee;
use ieee.std_logic_1164.all;

entity Filter is
  port (Clk : in std_logic; D : in std_logic_vector(3 downto 0); Q : out std_logic_vector(3 downto 0);
        Pad : inout std_logic);
end entity;

architecture RTL of Filter is
  component Counter is
    port (clk : in std_logic; value : out std_logic_vector(1 downto 0));
  end component;
  signal Held : std_logic_vector(3 downto 0);
  signal Value : std_logic_vector(1 downto 0);
begin
  Held <= D when rising_edge(Clk);
  Q <= Held and Value & Value;
  Pad <= 'Z';
  G_Count : for N in 0 to 1 generate
    U_Counter : Counter port map (clk => Clk, value => Value);
  end generate;
end architecture;
