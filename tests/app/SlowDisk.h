// The disk as the tests of a whole program want it: LogTest.cpp stands in for fsync.
#pragma once

#include <atomic>
#include <unistd.h>

namespace fixture {

inline useconds_t slowness = 0;                    // how long, in microseconds, a file takes to the disk
inline bool isFolderUncertain = false;             // whether the disk fails to take in a folder
inline std::atomic<bool> areJournalsHeld = false;  // whether a journal's file does not get there
inline std::atomic<int> journalsOnTheirWay = 0;    // that are so held

}  // namespace fixture
