#include "output/PrintJob.h"

#include <algorithm>
#include <cups/cups.h>
#include <span>

std::string WhyJobWasRefused() {
  if (cupsLastError() < IPP_STATUS_REDIRECTION_OTHER_SITE) return {};
  const char* reason = cupsLastErrorString();
  return reason ? reason : "no reason is told";
}

void CancelNewestJob(const std::string& printer, const std::string& title) {
  cups_job_t* jobs = nullptr;
  const int count = cupsGetJobs2(CUPS_HTTP_DEFAULT, &jobs, printer.c_str(), 1, CUPS_WHICHJOBS_ACTIVE);
  int newest = 0;
  for (const cups_job_t& job : std::span(jobs, static_cast<std::size_t>(std::max(count, 0))))
    if (title == job.title) newest = std::max(newest, job.id);
  cupsFreeJobs(count, jobs);
  if (newest != 0) cupsCancelJob2(CUPS_HTTP_DEFAULT, printer.c_str(), newest, 0);
}
