-- SPDX-FileCopyrightText: 2026 The RtlVakIns authors
-- SPDX-License-Identifier: Apache-2.0

library ieee;
use ieee.std_logic_1164.all;

entity Drawer is
  port (Clk, Open_It : in std_logic; Full : out std_logic);
end entity;
