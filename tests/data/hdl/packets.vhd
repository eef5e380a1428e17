-- SPDX-FileCopyrightText: 2026 The RtlVakIns authors
-- SPDX-License-Identifier: Apache-2.0

-- Signals of every kind of type, declared in the order of the list.

library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;

package Packet_Types is
  type Phase_T is (Idle, Header, Payload);
  type Power_T is (Off, On_Battery);
  type Only_T is (Sole);
  subtype Percent_T is integer range 0 to 100;
  subtype Offset_T is integer range -5 to 3;
  type Flags_T is record
    Valid, Last : std_logic;
  end record;
  type Header_T is record
    Len   : unsigned(11 downto 0);
    Flags : Flags_T; -- in a record
    Phase : Phase_T;
  end record Header_T;
  type Queue_T is array (0 to 1) of Header_T;
  type Lanes_T is array (2 downto 0) of std_logic_vector(7 downto 0);
  type Words_T is array (0 to 15) of std_logic_vector(7 downto 0);
  type Grid_T is array (0 to 1, 3 downto 0) of std_logic;
  type Cubes_T is array (0 to 1, 0 to 1) of std_logic_vector(1 downto 0);
  type By_Phase_T is array (Phase_T) of std_logic_vector(3 downto 0);
  type Rows_T is array (natural range <>) of std_logic_vector;
  type Flag_List_T is array (natural range <>) of Flags_T;
  signal Shared_By_All : std_logic;
end package Packet_Types;

library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;
use work.packet_types.all;

entity Packets is
  generic (
    Width : positive := 8;
    Mark  : string   := "a;b"
  );
  port (
    Clk, Reset_N : in    std_logic;
    Data_In      : in    std_logic_vector(Width - 1 downto 0);
    Rising       : in    std_logic_vector(0 to 7);
    High         : in    unsigned(31 downto 16);
    Single       : in    std_logic_vector(0 downto 0);
    Empty        : in    std_logic_vector(-1 downto 0);
    Pad          : inout std_logic;
    Bus_Pad      : inout std_logic_vector(1 downto 0);
    Result       : out   Header_T;
    Total        : buffer Percent_T
  );
end entity;

architecture RTL of Packets is
  signal Phase  : Phase_T;
  signal Power  : Power_T;
  signal Only   : Only_T;
  signal Level  : Percent_T;
  signal Offset : Offset_T;
  signal Steps  : integer;
  signal Count  : natural;
  signal Go     : boolean;
  signal One    : bit;
  signal Many   : bit_vector(3 downto 0);
  signal Letter : character;
  signal Text   : string(1 to 4);
  signal Ratio  : real;
  signal Delay  : time;
  signal Amount : signed(4 downto 0);
  signal Queue  : Queue_T;
  signal Lanes  : Lanes_T;
  signal Words  : Words_T;
  signal Grid   : Grid_T;
  signal Cubes  : Cubes_T;
  signal States : By_Phase_T;
  signal Rows   : Rows_T(0 to 1)(5 downto 0);
  signal Marks  : Flag_List_T(1 downto 0);
  signal Big    : Flag_List_T(0 to 99);
  signal \Bus.Valid\, \end\ : std_logic;
  signal Idle_Net    : std_logic; -- named by nothing else
  signal Idle_Vector : std_logic_vector(2 downto 0);
  attribute keep : string;
  attribute keep of Idle_Net : signal is "true";
  constant Limit : integer := 3;
  alias Low_Half : std_logic_vector(3 downto 0) is Data_In(3 downto 0);
  function Invert(Value : std_logic) return std_logic is
    variable Local : std_logic;
  begin
    Local := not Value;
    return Local;
  end function;
begin
  process (clk, reset_n) is
    variable inner : integer range 0 to 7;
  begin
    if reset_n = '0' then
      PHASE <= idle;
      power <= Off;
      level <= 0;
    elsif rising_edge(clk) then
      offset <= -1; steps <= 5; count <= 7; go <= true; one <= '1'; many <= X"a";
      letter <= 'x'; text <= "ab;c"; ratio <= 1.5e3; delay <= 10 ns; amount <= to_signed(level, 5);
      only <= Only_T'(Sole);
    end if;
  end process;

  queue(0).len <= (others => '0');
  lanes(0) <= data_in; words(0) <= rising; grid(0, 0) <= invert(single(0)); cubes(0, 1) <= "10";
  states(idle) <= x"3"; rows(0) <= (others => pad); marks(0).valid <= bus_pad(0); big(5).last <= '1';
  \Bus.Valid\ <= \end\ when high(16) = '1' else reset_n;
  result <= queue(1);
end architecture;
