// What stands in for the desktop in a test. Each stands in for as long as it lives.
#pragma once

#include <sys/resource.h>

#include "platform/Failure.h"
#include "platform/Process.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/dialogs/OpenFileDialog.h"
#include "platform/files/Files.h"
#include "tests/support/Sample.h"
#include "tests/support/Staging.h"
#include "tests/support/Toolkit.h"

namespace fixture {

using Texts = std::vector<std::string>;

// An empty program folder, removed at the end.
class Folder {
 public:
  Folder() { platform::SetProgramFolder(path()); }
  ~Folder() { platform::SetProgramFolder({}); }
  Q_DISABLE_COPY_MOVE(Folder)

  std::string path() const { return QFile::encodeName(folder_.path()).toStdString(); }
  // Names are UTF-8; a name may lead into a folder that exists.
  std::string PathOf(std::string_view name) const { return path() + "/" + std::string(name); }

  void Write(std::string_view name, std::string_view bytes) const {
    QFile file(QtPath(name));
    const auto size = static_cast<qint64>(bytes.size());
    ASSERT_TRUE(file.open(QFile::WriteOnly) && file.write(bytes.data(), size) == size) << name;
  }
  // The file's bytes; none when there is no such file.
  std::string Read(std::string_view name) const {
    QFile file(QtPath(name));
    return file.open(QFile::ReadOnly) ? file.readAll().toStdString() : std::string();
  }
  bool Exists(std::string_view name) const { return QFile::exists(QtPath(name)); }
  // A small white picture.
  void WritePicture(std::string_view name) const {
    QImage picture(4, 4, QImage::Format_RGB32);
    picture.fill(Qt::white);
    EXPECT_TRUE(picture.save(QtPath(name), "PNG")) << name;
  }
  // Puts a full folder into the file's place, which can be neither written over nor deleted, and takes it
  // away.
  void Block(std::string_view name) const { EXPECT_TRUE(QDir().mkpath(QtPath(name) + u"/full"_qs)) << name; }
  void Unblock(std::string_view name) const { EXPECT_TRUE(QDir(QtPath(name)).removeRecursively()) << name; }
  // The names of all entries, hidden ones too, in the order of their bytes; of a folder in it too.
  Texts Names(std::string_view inner = {}) const {
    Texts names;
    const auto all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    for (const QString& name : QDir(QtPath(inner)).entryList(all)) names.push_back(name.toStdString());
    std::sort(names.begin(), names.end());
    return names;
  }

 private:
  QString QtPath(std::string_view name) const { return QFile::decodeName(PathOf(name).c_str()); }
  QTemporaryDir folder_;
};

// As somebody whom the permissions of files bind; root is bound by none.
inline void RunPowerless(const Folder& folder, const std::function<void()>& routine) {
  const uid_t before = geteuid(), powerless = before == 0 ? 65534 : before;
  Texts names = folder.Names();
  for (const std::string& name : (names.push_back("."), names))
    EXPECT_EQ(chown(folder.PathOf(name).c_str(), powerless, static_cast<gid_t>(-1)), 0);
  EXPECT_EQ(seteuid(powerless), 0);
  routine();
  EXPECT_EQ(seteuid(before), 0);
}

// No file can grow beyond so many bytes, which the system tells as it tells of a full disk: by a failed
// write.
class SmallDisk {
 public:
  explicit SmallDisk(rlim_t bytes) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit small{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
  }
  ~SmallDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, signalBefore_);
  }
  Q_DISABLE_COPY_MOVE(SmallDisk)

 private:
  rlimit before_{};
  void (*signalBefore_)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

// Answers every message box, Ok boxes with Ok, and keeps what was asked.
class Answers {
 public:
  Answers()
      : before_(platform::SetMessageAnswerer([this](const platform::Message& message) {
          messages.push_back(message);
          if (message.buttons == platform::Buttons::Ok) return platform::Answer::Ok;
          if (message.buttons == platform::Buttons::OkCancel)
            return ok-- > 0 ? platform::Answer::Ok : platform::Answer::Cancel;
          return yes-- > 0 ? platform::Answer::Yes : platform::Answer::No;
        })) {}
  ~Answers() { platform::SetMessageAnswerer(std::move(before_)); }
  Q_DISABLE_COPY_MOVE(Answers)

  Texts texts() const {
    Texts texts;
    for (const platform::Message& message : messages) texts.push_back(message.text);
    return texts;
  }
  std::string last() const { return messages.empty() ? std::string() : messages.back().text; }

  int ok = 0;                               // so many coming Ok/Cancel boxes are answered Ok
  int yes = 0;                              // so many coming Yes/No boxes are answered Yes
  std::vector<platform::Message> messages;  // in the order of their showing

 private:
  platform::MessageAnswerer before_;
};

// Chooses that file in every open dialog, or cancels it without one, and keeps what was asked.
class Chooser {
 public:
  Chooser() = default;
  ~Chooser() { platform::SetOpenFileChooser(std::move(before_)); }
  Q_DISABLE_COPY_MOVE(Chooser)

  std::optional<std::string> file;
  std::vector<platform::OpenFileQuestion> asked;

 private:
  platform::OpenFileChooser before_ = platform::SetOpenFileChooser([this](const auto& question) {
    asked.push_back(question);
    return file;
  });
};

// Counts the ends of the process, which then goes on: what a routine does after its EndProcess() is seen too.
class End {
 public:
  End() = default;
  ~End() { platform::SetProcessEnder(std::move(before_)); }
  Q_DISABLE_COPY_MOVE(End)

  int count = 0;

 private:
  platform::ProcessEnder before_ = platform::SetProcessEnder([this] { ++count; });
};

// The routine must fail with this kind, in a sentence that has these words in it.
inline void ExpectFailure(platform::FailureKind kind, const std::string& words,
                          const std::function<void()>& routine) {
  try {
    routine();
    ADD_FAILURE() << "no failure with " << words;
  } catch (const platform::Failure& failure) {
    EXPECT_EQ(failure.kind(), kind) << failure.what();
    EXPECT_NE(std::string(failure.what()).find(words), std::string::npos) << failure.what();
  }
}

// The state at the start of a program that has an empty folder, and a desktop to answer it.
class Desk : public testing::Test {
 protected:
  Desk() { ResetState(); }
  ~Desk() override { ResetState(); }

  Folder folder;
  Answers answers;
  Chooser chooser;
  End end;
};

}  // namespace fixture
