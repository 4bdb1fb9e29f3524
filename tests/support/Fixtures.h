// What stands in for the desktop in a test. Each stands in for as long as it lives.
#pragma once

#include <algorithm>
#include <deque>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include "platform/Dates.h"
#include "platform/Files.h"
#include "platform/MessageBox.h"
#include "platform/Process.h"

namespace fixture {

// An empty program folder, removed at the end.
class Folder {
 public:
  Folder() { platform::SetProgramFolder(path()); }
  ~Folder() { platform::SetProgramFolder({}); }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  std::string path() const { return QFile::encodeName(folder_.path()).toStdString(); }
  // Names are UTF-8; a name may lead into a folder that exists.
  std::string PathOf(std::string_view name) const { return path() + "/" + std::string(name); }

  void Write(std::string_view name, std::string_view bytes) const {
    QFile file(QtPath(name));
    ASSERT_TRUE(file.open(QFile::WriteOnly)) << name;
    ASSERT_EQ(file.write(bytes.data(), static_cast<qint64>(bytes.size())), static_cast<qint64>(bytes.size()));
  }
  // The file's bytes; a failed test and nothing when there is no such file.
  std::string Read(std::string_view name) const {
    QFile file(QtPath(name));
    EXPECT_TRUE(file.open(QFile::ReadOnly)) << name;
    return file.readAll().toStdString();
  }
  bool Exists(std::string_view name) const { return QFile::exists(QtPath(name)); }
  // The names of all entries, hidden ones too, in the order of their bytes.
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    const auto all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    for (const QString& name : QDir(folder_.path()).entryList(all)) names.push_back(name.toStdString());
    std::sort(names.begin(), names.end());
    return names;
  }

 private:
  QString QtPath(std::string_view name) const { return QFile::decodeName(PathOf(name).c_str()); }
  QTemporaryDir folder_;
};

// Answers every message box and keeps what was asked. Without a script an Ok box is answered Ok and a Yes/No
// box No.
class Answers {
 public:
  Answers() {
    before_ = platform::SetMessageAnswerer([this](const platform::Message& message) {
      messages.push_back(message);
      return Next(message.buttons);
    });
  }
  ~Answers() { platform::SetMessageAnswerer(std::move(before_)); }
  Answers(const Answers&) = delete;
  Answers& operator=(const Answers&) = delete;

  // The answers of the coming Yes/No boxes, in order; Ok boxes use none up.
  Answers& Yes() { return Then(platform::Answer::Yes); }
  Answers& No() { return Then(platform::Answer::No); }

  std::vector<std::string> texts() const {
    std::vector<std::string> texts;
    for (const platform::Message& message : messages) texts.push_back(message.text);
    return texts;
  }
  // The text of the last message; empty when there was none.
  std::string last() const { return messages.empty() ? std::string() : messages.back().text; }

  std::vector<platform::Message> messages;  // in the order of their showing

 private:
  Answers& Then(platform::Answer answer) {
    script_.push_back(answer);
    return *this;
  }
  platform::Answer Next(platform::Buttons buttons) {
    if (buttons == platform::Buttons::Ok) return platform::Answer::Ok;
    if (script_.empty()) return platform::Answer::No;
    const platform::Answer answer = script_.front();
    script_.pop_front();
    return answer;
  }

  std::deque<platform::Answer> script_;
  platform::MessageAnswerer before_;
};

// Counts the ends of the process, which then goes on: what a routine does after its EndProcess() is seen too.
class End {
 public:
  End() {
    before_ = platform::SetProcessEnder([this] { ++count; });
  }
  ~End() { platform::SetProcessEnder(std::move(before_)); }
  End(const End&) = delete;
  End& operator=(const End&) = delete;

  int count = 0;

 private:
  platform::ProcessEnder before_;
};

// A clock that stands at a date (days since 30 December 1899) until it is moved.
class Clock {
 public:
  explicit Clock(double date) : now(date) {
    platform::SetClock([this] { return now; });
  }
  ~Clock() { platform::SetClock({}); }
  Clock(const Clock&) = delete;
  Clock& operator=(const Clock&) = delete;

  double now;
};

// Long dates that read the same on every machine: "day 45000".
class PlainLongDates {
 public:
  PlainLongDates() {
    platform::SetLongDate([](double date) { return QStringLiteral("day %1").arg(static_cast<long>(date)); });
  }
  ~PlainLongDates() { platform::SetLongDate({}); }
  PlainLongDates(const PlainLongDates&) = delete;
  PlainLongDates& operator=(const PlainLongDates&) = delete;
};

}  // namespace fixture
