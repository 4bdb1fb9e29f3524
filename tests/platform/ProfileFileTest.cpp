#include <gtest/gtest.h>

#include "platform/files/ProfileFile.h"

namespace {

using platform::ProfileValue;
using platform::WithProfileValue;

const std::string kept =
    "; my own remark\r\n[Window]\r\noptColor=9\r\n\r\n[options]\nCHKGOTOLASTPAGE = 1\r\n;optColor=7\r\n"
    "OptColor= 2 \r\nmine=kept\r\n\r\n[Options]\r\noptColor=1\r\n";

TEST(ProfileFile, ReadsAsAPersonWouldHaveWrittenIt) {
  const struct {
    std::string text, value;
  } cases[] = {
      {kept, "2"},
      {"", ""},
      {"optColor=1", ""},
      {"[Options]\n\t optcolor \t=\t a b \t\n", "a b"},
      {"[ OPTIONS ]\noptColor", ""},
      {"[Options\noptColor=\"1 \"", "1 "},
      {"[Options]\noptColor='", "'"},
      {"[Options]\noptColor=", ""},
      {"[Options]\noptColor=" + std::string(300, '1'), std::string(256, '1')},
      {std::string("[Options]\noptColor=\0002", 21), std::string("\0002", 2)},
  };
  for (const auto& [text, value] : cases) EXPECT_EQ(ProfileValue(text, "Options", "optColor"), value) << text;
}

TEST(ProfileFile, WritesOneLineAndLeavesTheRest) {
  const struct {
    std::string before, after;
  } cases[] = {
      {"", "[Options]\r\noptColor=0\r\n"},
      {"[Other]\na=b", "[Other]\r\na=b\r\n[Options]\r\noptColor=0\r\n"},
      {"[OPTIONS]\n\n\n[Other]\n", "[OPTIONS]\r\noptColor=0\r\n\r\n\r\n[Other]\r\n"},
      {kept,
       "; my own remark\r\n[Window]\r\noptColor=9\r\n\r\n[options]\r\nCHKGOTOLASTPAGE = 1\r\n;optColor=7\r\n"
       "optColor=0\r\nmine=kept\r\n\r\n[Options]\r\noptColor=1\r\n"},
  };
  for (const auto& [before, after] : cases) {
    EXPECT_EQ(WithProfileValue(before, "Options", "optColor", "0"), after);
    EXPECT_EQ(WithProfileValue(after, "Options", "optColor", "0"), after);
  }
}

}  // namespace
