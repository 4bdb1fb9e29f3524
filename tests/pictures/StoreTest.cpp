// The picture stores on disk, through the start and the first save.
#include "pictures/modPictures.h"
#include "store/PictureStore.h"
#include "tests/support/Fixtures.h"

namespace {

using fixture::Texts;

const char store[] = "tqpics.bin";
const char oldStore[] = "jpics.bin";

class PictureStores : public fixture::Desk {
 protected:
  void WriteStore(const Texts& files) {
    std::vector<PagePicture> rows;
    for (const std::string& file : files) rows.emplace_back().PictureFile = file;
    folder.Write(store, store::EncodePictureStore(rows));
  }
  // A slot for the count and twelve for one blank row.
  void WriteOldStore(char count) { folder.Write(oldStore, count + std::string(13 * 128 - 1, '\0')); }
  // "2 /a,/b": PictureCount and the picture files of the rows from 1 on.
  static std::string Loaded() {
    std::string outline = std::to_string(PictureCount) + " ";
    for (std::size_t row = 1; row < Pictures.size(); ++row) outline += Pictures[row].PictureFile + ",";
    return outline;
  }
  std::string Saved() {
    Pictures = store::DecodePictureStore(folder.Read(store)).rows;
    PictureCount = static_cast<std::int32_t>(Pictures.size()) - 1;
    return Loaded();
  }
};

TEST_F(PictureStores, NoRowIsThereWithoutAStoreAndOneMoreWithIt) {
  LoadPictureStore();
  EXPECT_EQ(PictureCount, 0);
  EXPECT_TRUE(Pictures.empty());
  WriteStore({"", "/old"});
  const std::string before = folder.Read(store);
  fixture::ExpectFailure(platform::FailureKind::SubscriptOutOfRange, "", SavePictureStore);
  EXPECT_EQ(folder.Read(store), before);
  LoadPictureStore();
  SavePictureStore();
  EXPECT_EQ(folder.Read(store).substr(4), before.substr(4) + std::string(40, '\0'));
}

TEST_F(PictureStores, TheOlderStoreWinsGoesAtOnceAndIsWrittenOnlyByASave) {
  WriteStore({"", "/newer"});
  WriteOldStore(0);
  LoadPictureStore();
  EXPECT_EQ(Loaded(), "0 ");
  EXPECT_EQ(folder.Names(), Texts{store});
  SavePictureStore();
  EXPECT_EQ(Saved(), "1 ,") << "the newer one is written over";
  EXPECT_EQ(folder.Names(), Texts{store}) << "and nothing of it is kept";
  EXPECT_TRUE(answers.messages.empty());
}

TEST_F(PictureStores, ADamagedStoreIsToldAndKeptBeside) {
  WriteStore({"", "/a", "/b"});
  const std::string cut = folder.Read(store).substr(0, 100);
  folder.Write(store, cut);
  LoadPictureStore();
  EXPECT_NE(answers.last().find(store), std::string::npos);
  EXPECT_EQ(folder.Names(), Texts{store});
  for (int round = 0; round < 2; ++round) SavePictureStore();
  EXPECT_EQ(folder.Names(), (Texts{store, "tqpics.bin.damaged"}));
  EXPECT_EQ(folder.Read("tqpics.bin.damaged"), cut);
  EXPECT_EQ(Saved(), "3 /a,,,");
  WriteOldStore(3);
  LoadPictureStore();
  EXPECT_NE(answers.last().find(oldStore), std::string::npos);
  EXPECT_EQ(folder.Names(), (Texts{"jpics.bin.damaged", store, "tqpics.bin.damaged"}));
}

TEST_F(PictureStores, WhatCannotBeReadIsToldAndTheProgramGoesOn) {
  folder.Block(store);
  LoadPictureStore();
  EXPECT_NE(answers.last().find(store), std::string::npos);
  EXPECT_EQ(answers.messages.size(), 1u);
  EXPECT_EQ(Loaded(), "0 ");
}

}  // namespace
