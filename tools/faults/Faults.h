// A library that is loaded before the C library into the real program. Calls.cpp counts the calls that change
// files, lets them fail, or ends the process in one of them; Player.cpp plays a script of clicks and keys in
// the windows. scripts/faults tells them what to do by variables of the environment, which the program itself
// does not read:
//   FAULTS_SCRIPT    the file with the player's steps
//   FAULTS_LOG       the file that gets a line for all that happens
//   FAULTS_FOLDER    calls that change what lies in this folder are counted, from 1 on
//   FAULTS_VERSIONS  a folder for copies of files when they are renamed or the disk is mended: "name@call"
//   FAULTS_RECORD    a folder for a copy of the file after each call; the log tells what the call changed
//   FAULTS_CALL      the call that it begins with
//   FAULTS_OF        whose calls are counted: the "window" thread's unless told; "log" is the thread that
//                    writes the log of what is not stored, "file" one that writes a long journal's file
//   FAULTS_HOW       before, half, after: a kill before, in the middle of (a write) or after the call;
//                    a number: calls fail with this errno until the disk is mended;
//                    a negative one: the same, but a write gets half of its bytes out first
//                    a number and "once": this call alone fails, as a device tells of a lost write
//   FAULTS_SLOW      a slow disk: so many milliseconds for each file that is forced to it
//   FAULTS_SLOW_FILE the same for the file that is written while the player goes on
//   FAULTS_PLAIN     the disk knows no second names for files, as simple ones do not
#pragma once

#include <string>

namespace faults {

void Log(const std::string& line);
// By a clock that runs on, unlike the one that the program is shown.
std::string Milliseconds();
// Whether calls have failed and the cause has not been mended.
bool IsBroken();
void Mend();

}  // namespace faults
