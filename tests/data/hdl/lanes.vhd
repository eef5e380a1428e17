-- SPDX-FileCopyrightText: 2026 The RtlVakIns authors
-- SPDX-License-Identifier: Apache-2.0

-- Instances of every kind, in generate statements and blocks. The top comes first; its parts follow.

library ieee;
use ieee.std_logic_1164.all;

entity Lanes is
  port (Clk : in std_logic; Sel : in std_logic_vector(3 downto 0); Sum : out std_logic_vector(3 downto 0));
end Lanes;

architecture Structure of Lanes is
  -- A component spells ports in its own way; the entity's count.
  component STAGE is
    generic (width : positive := 4);
    port (CLK : in std_logic; d : in std_logic_vector(width - 1 downto 0);
          q : out std_logic_vector(width - 1 downto 0));
  end component STAGE;
  component Vendor_Pll is
    port (Ref : in std_logic; Fast : out std_logic);
  end component;
  component Swapped is
    port (X : in std_logic; Y : out std_logic);
  end component;
  component ov_jtag is
    port (tdo : in std_logic);
  end component;
  signal Taps : std_logic_vector(3 downto 0);
  signal Fast_Clk, Locked, Turned, Tdo : std_logic;
  for U_Swap : Swapped use entity work.Inverter(Late) port map (A => X, Y => Y);
begin
  G_Lane : for I in 0 to 1 generate
    signal Carry : std_logic_vector(3 downto 0);
  begin
    U_Stage : STAGE port map (clk => clk, d => sel, q => carry);
    G_Tap : for J in 3 downto 2 generate
      signal Tap : std_logic;
    begin
      Tap <= Carry(J);
      G_Last : if I = 1 generate
        signal Last : std_logic;
      begin
        Last <= Tap;
        U_Inv : entity work.Inverter(Early) port map (A => Last, Y => open);
      end generate G_Last;
    end generate;
  end generate G_Lane;

  G_Either : if Sel'length = 3 generate
    signal Never : std_logic;
  begin
    Never <= Clk;
  else generate
    signal Always_There : std_logic;
  begin
    Always_There <= Clk;
  end generate;

  B_Inner : block is
    port (Inside : in std_logic);
    port map (Inside => Clk);
    signal CARRY : std_logic; -- another one than that of the lanes
  begin
    Carry <= Inside;
    U_Wide : component STAGE
      generic map (width => 12)
      port map (clk => Carry, d => (others => '0'), q => open);
  end block B_Inner;

  U_Pll  : Vendor_Pll port map (Ref => Clk, Fast => Fast_Clk);
  U_Swap : Swapped port map (X => Fast_Clk, Y => Turned);
  U_Conf : configuration work.Inverter_Early port map (A => Turned, Y => Locked);
  \u.Odd\ : entity work.Inverter(Late) port map (A => Turned, Y => Tdo);
  U_Jtag : ov_jtag port map (tdo => Tdo);
  Sum <= Taps;
  P_Taps : process (Clk)
  begin
    for K in Taps'range loop
      Taps(K) <= Sel(K) xor Locked;
    end loop;
  end process P_Taps;
end Structure;

library ieee;
use ieee.std_logic_1164.all;

entity Stage is
  generic (Width : positive := 4);
  port (Clk : in std_logic; D : in std_logic_vector(Width - 1 downto 0);
        Q : out std_logic_vector(Width - 1 downto 0));
end entity Stage;

architecture RTL of Stage is
  signal Held : std_logic_vector(D'range);
begin
  Held <= D when rising_edge(Clk);
  Q <= Held;
end architecture RTL;

library ieee;
use ieee.std_logic_1164.all;

entity Inverter is
  port (A : in std_logic; Y : out std_logic);
end;

architecture Early of Inverter is
  signal From_Early : std_logic;
begin
  From_Early <= not A;
  Y <= From_Early;
end;

architecture Late of Inverter is
  signal From_Late : std_logic;
begin
  From_Late <= not A;
  Y <= From_Late;
end;

configuration Inverter_Early of Inverter is
  for Early
  end for;
end configuration;
