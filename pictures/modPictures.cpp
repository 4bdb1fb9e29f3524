#include "pictures/modPictures.h"

#include <utility>

#include "platform/Failure.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/dialogs/TellKept.h"
#include "platform/files/Files.h"
#include "platform/files/InputFile.h"
#include "platform/files/KeptFiles.h"
#include "platform/files/KnownFiles.h"
#include "platform/files/ReplaceFile.h"
#include "platform/files/SyncFolder.h"
#include "state/State.h"
#include "store/PictureStore.h"

namespace {

using platform::Failure;
using platform::FailureKind;

const char storeName[] = "tqpics.bin";
const char oldStoreName[] = "jpics.bin";

// Whether tqpics.bin may hold more than what was read from it.
bool keepBeforeSaving = false;

// What tqpics.bin holds, as far as it was read or written.
std::optional<store::FileCheck> fileCheck;
// Whether Pictures holds the rows of an older store that is gone, and no file has them yet.
bool areOnlyHere = false;
// Whether the older store lies there though it was read, and is to go when its rows are safe; and whether it
// must be kept under another name then.
bool oldStoreWaits = false;
bool keepsOldStore = false;

void Take(store::DecodedPictures store) {
  Pictures = std::move(store.rows);
  PictureCount = static_cast<std::int32_t>(Pictures.size()) - 1;
}

void TellDamaged(const std::string& name, const std::string& whatBecomesOfIt) {
  platform::ShowMessage("The file " + name +
                        ", which tells what pictures lie on the pages, is damaged. The pictures that are "
                        "whole in it were read.\n\n" +
                        whatBecomesOfIt);
}

void TellUnreadable(const std::string& name, const Failure& failure) {
  platform::ShowMessage("The file " + name +
                        ", which tells what pictures lie on the pages, could not be read. " + failure.what() +
                        "\n\nThe pages open without their pictures.");
}

void LoadStore() {
  try {
    const std::string bytes = platform::ReadDataFile(platform::PathOf(storeName));
    fileCheck = store::CheckOf(bytes);
    store::DecodedPictures decoded = store::DecodePictureStore(bytes);
    keepBeforeSaving = decoded.isDamaged;
    Take(std::move(decoded));
    if (keepBeforeSaving)
      TellDamaged(storeName, "The damaged file is kept beside before it is written over.");
  } catch (const Failure& failure) {
    keepBeforeSaving = true;
    platform::AcceptUnread(platform::PathOf(storeName));
    Take({{{}}, true});
    TellUnreadable(storeName, failure);
  }
}

// Returns whether the file must be kept.
bool ReadOldStore(const std::string& path) {
  try {
    store::DecodedPictures decoded = store::DecodeOldPictureStore(platform::ReadFile(path));
    const bool isDamaged = decoded.isDamaged;
    Take(std::move(decoded));
    if (isDamaged)
      TellDamaged(oldStoreName, "The damaged file is kept beside, under a name that ends in .damaged.");
    return isDamaged;
  } catch (const Failure& failure) {
    Take({{{}}, true});
    TellUnreadable(oldStoreName, failure);
    return true;
  }
}

// What cannot be kept under another name stays.
void DeleteOldStore() {
  const std::string path = platform::PathOf(oldStoreName);
  try {
    keepsOldStore ? void(platform::MoveAside(path)) : platform::DeleteFile(path);
    platform::SyncFolderOf(path);  // what is added from now on would not show if it came back
  } catch (const Failure& failure) {
    platform::ShowMessage("The older file jpics.bin could not be removed. " + std::string(failure.what()) +
                          "\n\nAs long as it is there, each start takes the pictures from it, and those that "
                          "were added since do not show. Please move it to another folder.");
  }
}

// Where neither the newer store nor the log could take its rows in, it is all that the disk has of them.
void LetOldStoreGo() {
  if (!oldStoreWaits || (areOnlyHere && LogThrough && !LogThrough())) return;
  oldStoreWaits = false;
  DeleteOldStore();
}

// The newer store is not looked at where there is an older one; but the log must know what it goes over.
void NoteNewerStore() {
  try {
    fileCheck = store::CheckOf(platform::ReadFile(platform::PathOf(storeName)));
  } catch (const Failure&) {
    fileCheck.reset();
  }
}

void WriteStore() {
  const std::string bytes = store::EncodePictureStore(Pictures);
  const std::string path = platform::PathOf(storeName);
  PicturesUnsaved = true;
  if (FileWillBeWritten) FileWillBeWritten(DataFile::ThePictures);
  const bool isChanged = platform::KeepChanged(path);
  if (keepBeforeSaving && !isChanged && platform::FileExists(path)) platform::KeepDamaged(path);
  keepBeforeSaving = false;  // one copy, even when the writing has to be tried again
  platform::ReplaceDataFile(path, bytes);
  fileCheck = store::CheckOf(bytes);
  PicturesUnsaved = areOnlyHere = false;
  LetOldStoreGo();
  if (SomethingWasStored) SomethingWasStored();
  platform::TellKept(path);
}

}  // namespace

void LoadPictureStore() {
  keepBeforeSaving = areOnlyHere = oldStoreWaits = false;
  fileCheck.reset();
  if (platform::FileExists(platform::PathOf(oldStoreName))) return ImportOldPictureStore();
  if (!platform::IsMissing(platform::PathOf(storeName))) LoadStore();
}

// The order is meant: the older store goes as soon as its rows are in memory, whether they are ever saved or
// not. The log has them before. The newer store, which nobody reads then, is written over.
void ImportOldPictureStore() {
  platform::AcceptUnread(platform::PathOf(storeName));
  const std::string path = platform::PathOf(oldStoreName);
  keepsOldStore = platform::FileExists(path) && ReadOldStore(path);
  NoteNewerStore();
  areOnlyHere = Pictures.size() > 1;
  oldStoreWaits = true;
  LetOldStoreGo();
}

void SavePictureStore() {
  if (Pictures.empty()) throw Failure(FailureKind::SubscriptOutOfRange);
  try {
    WriteStore();
  } catch (const Failure& failure) {
    platform::ShowMessage(PicturesNotSaved(failure));
    LetOldStoreGo();
  }
}

void WritePicturesLeftUnsaved() {
  if (PicturesUnsaved) WriteStore();
}

std::optional<store::UnstoredFile> UnstoredPictures() {
  if (Pictures.empty() || !(PicturesUnsaved || areOnlyHere)) return std::nullopt;
  const bool isMissing = platform::IsMissing(platform::PathOf(storeName));
  return store::UnstoredFile{isMissing ? std::nullopt : fileCheck, store::EncodePictureStore(Pictures)};
}

std::string PicturesNotSaved(const std::exception& failure) {
  return "The pictures could not be saved in tqpics.bin. " + std::string(failure.what()) +
         "\n\nNothing is lost: they stay on the pages, and " + platform::FileAfter(failure) +
         ". When the cause is removed, the next change of a picture saves them all, or leaving the program "
         "does.";
}

void RemovePicturesOf(const std::string& journalFile) {
  for (std::int32_t row = 1; row <= PictureCount; ++row) {
    PagePicture& picture = Pictures.at(static_cast<std::size_t>(row));
    if (picture.JournalFile == journalFile) picture.Deleted = True;
  }
}
