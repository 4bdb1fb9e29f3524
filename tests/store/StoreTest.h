// A scratch folder, answered boxes and blank state, and bytes written by hand.
#pragma once

#include <climits>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

#include "platform/Failure.h"
#include "state/State.h"
#include "tests/support/Fixtures.h"

class StoreTest : public testing::Test {
 protected:
  StoreTest() { ResetState(); }
  ~StoreTest() override { ResetState(); }

  static std::string Sample(const std::string& path) {
    return platform::ReadFile(std::string(TEST_SAMPLES) + "/" + path);
  }

  fixture::Folder folder;
  fixture::Answers answers;
  fixture::End end;
};

// The lowest `size` bytes of a number, the lowest first.
inline std::string Raw(std::uint64_t number, int size) {
  std::string bytes;
  for (int i = 0; i < size; ++i) bytes += static_cast<char>(number >> (8 * i));
  return bytes;
}
inline std::string Counted(std::string_view text) {
  return Raw(text.size(), 2) += text;
}
inline std::string Repeated(int times, const std::string& text) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}
// Every second byte, the fillers left out.
inline std::string WithoutFillers(std::string_view text, std::size_t first) {
  std::string kept;
  for (std::size_t i = first; i < text.size(); i += 2) kept += text[i];
  return kept;
}

// Expects that the statement fails with this kind.
template <class Statement>
void ExpectFailure(platform::FailureKind kind, Statement&& statement) {
  try {
    statement();
    ADD_FAILURE() << "nothing was thrown";
  } catch (const platform::Failure& failure) {
    EXPECT_EQ(failure.kind(), kind) << failure.what();
  }
}
