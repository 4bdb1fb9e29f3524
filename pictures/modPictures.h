// The pictures of all journals between the disk and Pictures.
#pragma once

#include <exception>
#include <optional>
#include <string>

#include "store/UnstoredLog.h"

// Reads jpics.bin of the program's folder, or where there is none tqpics.bin, into Pictures and PictureCount.
// Without either nothing changes. A store that is damaged, or cannot be read, is told in a message that names
// it; what is whole of it is in Pictures, with row 0 at the least.
void LoadPictureStore();

// Reads jpics.bin into Pictures and deletes it. Nothing is written: tqpics.bin comes with the next
// SavePictureStore. A damaged one is kept beside instead. While neither the log nor tqpics.bin can take its
// rows in, it stays.
void ImportOldPictureStore();

// Writes the rows of Pictures that are not removed to tqpics.bin. A file that could not be read whole is kept
// beside before it is written over. A file that cannot be written is told in a message and stays as it was,
// and so do the rows. Throws platform::Failure (SubscriptOutOfRange), before anything on disk changes, while
// there is no row 0: before a store was loaded or a picture was added.
void SavePictureStore();

// Writes tqpics.bin if the last SavePictureStore failed. Throws platform::Failure, with the file as it was.
void WritePicturesLeftUnsaved();
// What a person is told of such a failure.
std::string PicturesNotSaved(const std::exception& failure);

// The picture store as SavePictureStore would write it now, for the log; none when the file has all of it.
std::optional<store::UnstoredFile> UnstoredPictures();

// Marks the rows of the journal with this FileName as removed. Saves nothing.
void RemovePicturesOf(const std::string& journalFile);
