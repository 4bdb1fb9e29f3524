// Who makes the program.
#pragma once

inline constexpr char MakersAddress[] = "http://www.zandolk.example/";
