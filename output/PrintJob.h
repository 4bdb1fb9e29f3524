// What became of a job that the print system was given: the toolkit does not tell.
#pragma once

#include <string>

// Why the print system has not taken the job that this thread gave it last, in its own words (UTF-8); empty
// where it has.
std::string WhyJobWasRefused();

// Takes back the newest job of this user and this title that the printer has not printed yet.
void CancelNewestJob(const std::string& printer, const std::string& title);
