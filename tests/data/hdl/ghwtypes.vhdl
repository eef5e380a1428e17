-- SPDX-FileCopyrightText: 2026 The RtlVakIns authors
-- SPDX-License-Identifier: Apache-2.0

-- One signal of every kind of type that the engine writes into its waveform file.

library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;

package ghwtypes_pkg is
  type state is (idle, run, \Halt it\, 'x', stop);
  type pair is (low, high);
  type only is (one);
  subtype active is state range run to stop;
  type tiny is range -3 to 9;
  type wide is range 0 to 2 ** 40;
  subtype small is integer range 0 to 200;
  subtype below is integer range -1 downto -8;
  type distance is range 0 to 100000 units um; mm = 1000 um; end units;
  subtype hop is distance range 1 um to 2 mm;
  subtype level is real range -1.5 to 2.5;

  type header is record
    valid : std_logic;
    kind  : state;
    len   : unsigned(15 downto 0);
  end record;
  subtype sameheader is header;
  type headers is array (natural range <>) of header;
  type rows is array (natural range <>) of std_logic_vector;
  type frame is record
    data : std_logic_vector;
    last : std_logic;
    rows : rows;
  end record;
  subtype openframe is frame;
  type nest is record
    inner : openframe;
    other : bit_vector(5 downto 4);
  end record;
  subtype openrows is rows;
  type planes is array (integer range <>) of openrows;
  type frames is array (0 to 1) of frame;
  type grid is array (0 to 1, 2 downto 1) of bit;
  type tally is array (state) of bit;
  type byname is array (boolean range <>, character range <>) of pair;
  type bytes is array (natural range <>) of std_ulogic_vector(7 downto 0);
  type grids is array (3 downto 2) of grid;
  type anywhere is array (integer range <>) of bit;
end package;

library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;
use work.ghwtypes_pkg.all;

entity ghwtypes is
end entity;

architecture all_kinds of ghwtypes is
  signal s_bit : bit;
  signal s_bool : boolean;
  signal s_logic : std_logic;
  signal s_ulogic : std_ulogic;
  signal s_x01 : x01;
  signal s_pair : pair;
  signal s_only : only;
  signal s_state : state;
  signal s_active : active;
  signal s_char : character;
  signal s_range : state range run to 'x';
  signal s_int : integer;
  signal s_natural : natural;
  signal s_tiny : tiny;
  signal s_wide : wide;
  signal s_small : small;
  signal s_below : below;
  signal s_anon : integer range 3 to 6;
  signal s_real : real;
  signal s_level : level;
  signal s_time : time;
  signal s_hop : hop;

  signal a_down : std_logic_vector(7 downto 0);
  signal a_up : std_ulogic_vector(0 to 2);
  signal a_negative : anywhere(-1 downto -4);
  signal a_null : bit_vector(0 downto 1);
  signal a_unsigned : unsigned(31 downto 16);
  signal a_pairs : byname(false to true, 'b' downto 'a');
  signal a_grid : grid;
  signal a_tally : tally;
  signal a_bytes : bytes(1 to 2);
  signal a_rows : rows(1 downto 0)(3 to 5);
  signal a_planes : planes(-1 to 0)(2 downto 1)(4 to 4);
  signal a_grids : grids;

  signal r_header : header;
  signal r_same : sameheader;
  signal r_array : headers(0 to 1);
  signal r_frame : frame(data(6 downto 5), rows(0 to 1)(3 to 4));
  signal r_nest : nest(inner(data(1 to 1), rows(2 to 3)(0 downto 0)));
  signal r_frames : frames(open)(data(2 downto 1), rows(0 to 0)(1 to 2));

  alias first : std_logic is a_down(7);
  attribute keep : boolean;
  attribute keep of a_up : signal is true;
begin
end architecture;
