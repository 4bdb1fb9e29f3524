// The program's folder and a desktop that answers every box, for as long as one input is tried.
#pragma once

#include <filesystem>
#include <fstream>
#include <map>
#include <string>

#include <QtCore/QTemporaryDir>

#include "fuzz/Require.h"
#include "platform/Process.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/files/Files.h"
#include "platform/files/InputFile.h"
#include "tests/support/Staging.h"

class Desk {
 public:
  using Files = std::map<std::string, std::string>;  // bytes by name

  Desk() {
    static const QTemporaryDir folder;  // of this process alone, and gone with it
    const std::string path = folder.path().toStdString();
    for (const auto& entry : std::filesystem::directory_iterator(path)) std::filesystem::remove(entry);
    ResetState();
    platform::SetProgramFolder(path);
    platform::SetMessageAnswerer([this](const platform::Message& message) {
      const auto says = [&](const char* words) { return message.text.find(words) != std::string::npos; };
      damageTold += says("damaged");
      Require(says("damaged") || says("Decryption Error:"), message.text.c_str());
      return platform::Answer::Ok;
    });
    platform::SetProcessEnder([this] { ++ends; });
  }
  ~Desk() {
    platform::SetMessageAnswerer({});
    platform::SetProcessEnder({});
  }
  Desk(const Desk&) = delete;
  Desk& operator=(const Desk&) = delete;

  void Write(const std::string& name, std::string_view bytes) const {
    std::ofstream(platform::PathOf(name), std::ios::binary) << bytes;
  }
  std::string Read(const std::string& name) const { return platform::ReadFile(platform::PathOf(name)); }
  // The folder holds these files and no other.
  void RequireFiles(const Files& expected, const char* what) const {
    Files files;
    for (const auto& entry : std::filesystem::directory_iterator(platform::ProgramFolder()))
      files[entry.path().filename()] = platform::ReadFile(entry.path());
    Require(files == expected, what);
  }
  // The file was written anew; one that was damaged lies beside it as it was.
  void RequireKept(const std::string& name, const std::string& before, bool wasDamaged) const {
    Files files = {{name, Read(name)}};
    if (wasDamaged) files[name + ".damaged"] = before;
    RequireFiles(files, "a damaged file, and no other, is kept beside");
  }

  int damageTold = 0;
  int ends = 0;  // of the process
};
