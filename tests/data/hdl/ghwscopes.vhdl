-- SPDX-FileCopyrightText: 2026 The RtlVakIns authors
-- SPDX-License-Identifier: Apache-2.0

-- Everything that has names of its own, and ports that are connected in every way.

package ghwscopes_pkg is
  signal Shared_Flag : bit;
  type lane is (left, right);
  subtype countdown is integer range -1 downto -2;
end package;

entity ghwleaf is
  generic (width : positive := 2);
  port (
    a    : in bit_vector;
    sel  : in bit;
    q    : out bit_vector(width - 1 downto 0);
    io   : inout bit;
    buf  : buffer bit;
    link : linkage bit);
end entity;

architecture rtl of ghwleaf is
  signal held : bit_vector(width - 1 downto 0);
begin
  q <= held;
  io <= '0';
  buf <= '0';
  store : process (sel) is
  begin
    if sel = '1' then
      held <= a(a'left to a'left + width - 1);
    end if;
  end process;
end architecture;

use work.ghwscopes_pkg.all;

entity ghwscopes is
  generic (lanes : natural := 2);
  port (clk : in bit := '0'; done : out bit);
end entity;

architecture rtl of ghwscopes is
  component ghwleaf is
    generic (width : positive := 2);
    port (
      a    : in bit_vector;
      sel  : in bit;
      q    : out bit_vector(width - 1 downto 0);
      io   : inout bit;
      buf  : buffer bit;
      link : linkage bit);
  end component;
  component missing is
    port (a : in bit);
  end component;
  signal bus_a : bit_vector(0 to 7);
  signal bus_q : bit_vector(7 downto 0);
  signal io, buf, link : bit;
  signal \a b\ : bit;
  signal \Back\\Slash\ : bit;
begin
  direct : entity work.ghwleaf
    generic map (width => 4)
    port map (a => bus_a(2 to 6), sel => clk, q => bus_q(3 downto 0), io => io, buf => buf, link => link);
  loose : component ghwleaf
    port map (a => bus_a, sel => Shared_Flag, q(1) => bus_q(4), q(0) => bus_q(7), io => open, buf => open, link => open);
  absent : missing port map (a => clk);

  outer : for i in 0 to lanes - 1 generate
    signal carry : bit;
  begin
    inner : for j in lane generate
      deep : for k in countdown generate
        chosen : if i = 1 and j = right and k = -2 generate
          signal only_here : bit;
        begin
          one : entity work.ghwleaf
            port map (a => bus_a(0 to 1), sel => carry, q => open, io => open, buf => open, link => open);
        end generate;
      end generate;
    end generate;
  end generate;

  letters : for c in character range 'a' to 'b' generate
    signal s : bit;
  begin
  end generate;
  never : for i in 1 to 0 generate
    signal s : bit;
  begin
  end generate;
  off : if lanes = 0 generate
    signal s : bit;
  begin
  else generate
    signal otherwise : bit;
  begin
  end generate;
  -- Which the engine leaves out of the file, with all that stands in it.
  pick : case lanes generate
    when two : 2 =>
      signal s : bit;
    begin
    end two;
    when others =>
  end generate;

  \Odd Block\ : block is
    generic (depth : positive := 3);
    generic map (depth => 2);
    port (enable : in bit; level : out bit_vector(depth - 1 downto 0));
    port map (enable => clk, level => open);
    signal inside : bit;
  begin
    within : block is
      signal s : bit;
    begin
    end block;
  end block;

  worker : process is
    variable counter : integer;
  begin
    wait;
  end process;
  process is
  begin
    wait;
  end process;
end architecture;
