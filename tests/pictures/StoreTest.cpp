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
  PictureStores() {
    std::vector<PagePicture> rows(3);
    rows[1].PictureFile = "/a";
    rows[2].PictureFile = "/b";
    folder.Write(store, store::EncodePictureStore(rows));
  }
  // A slot for the count and twelve for each blank row.
  void WriteOldStore(char count, std::size_t rows = 1) {
    folder.Write(oldStore, count + std::string((1 + 12 * rows) * 128 - 1, '\0'));
  }
  // "2 /a,/b,": PictureCount and the picture files of the rows from 1 on, after the store was loaded.
  static std::string Loaded() {
    LoadPictureStore();
    std::string outline = std::to_string(PictureCount) + " ";
    for (std::size_t row = 1; row < Pictures.size(); ++row) outline += Pictures[row].PictureFile + ",";
    return outline;
  }
};

TEST_F(PictureStores, GrowByARowAndTheOlderOneWinsAndGoesAtOnce) {
  const std::string before = folder.Read(store);
  fixture::ExpectFailure(platform::FailureKind::SubscriptOutOfRange, "", SavePictureStore);
  EXPECT_EQ(folder.Read(store), before) << "no store was loaded";
  EXPECT_EQ(Loaded(), "3 /a,/b,,");
  SavePictureStore();
  EXPECT_EQ(Loaded(), "4 /a,/b,,,");
  WriteOldStore(0);
  EXPECT_EQ(Loaded(), "0 ");
  EXPECT_EQ(folder.Names(), Texts{store});
  SavePictureStore();
  EXPECT_EQ(Loaded(), "1 ,") << "the newer one is written over";
  EXPECT_EQ(folder.Names(), Texts{store}) << "and nothing of it is kept";
}

TEST_F(PictureStores, TheOlderOneStaysUntilItsRowsAreSafe) {
  WriteOldStore(1, 2);
  LogThrough = [] { return false; };
  LoadPictureStore();
  ASSERT_EQ(PictureCount, 1);
  EXPECT_EQ(folder.Names(), (Texts{oldStore, store}));
  SavePictureStore();
  EXPECT_EQ(folder.Names(), Texts{store});
}

TEST_F(PictureStores, ADamagedStoreIsToldAndKeptBeside) {
  const std::string cut = folder.Read(store).substr(0, 100);
  folder.Write(store, cut);
  EXPECT_EQ(Loaded(), "2 /a,,");
  for (int round = 0; round < 2; ++round) SavePictureStore();
  EXPECT_EQ(folder.Read("tqpics.bin.damaged"), cut);
  WriteOldStore(3);
  LoadPictureStore();
  EXPECT_EQ(answers.messages.size(), 2u);
  EXPECT_EQ(folder.Names(), (Texts{"jpics.bin.damaged", store, "tqpics.bin.damaged"}));
}

TEST_F(PictureStores, AStoreThatAnotherProgramPutThereIsKeptBeside) {
  EXPECT_EQ(Loaded(), "3 /a,/b,,");
  folder.Write(store, "another's");
  for (int round = 0; round < 2; ++round) SavePictureStore();
  EXPECT_EQ(folder.Read("tqpics.bin.1.other"), "another's");
  EXPECT_EQ(answers.messages.size(), 1u);
  EXPECT_EQ(folder.Names(), (Texts{store, "tqpics.bin.1.other"}));
}

TEST_F(PictureStores, WhatIsMissingOrCannotBeReadIsNoneAndTheProgramGoesOn) {
  platform::DeleteFile(folder.PathOf(store));
  EXPECT_EQ(Loaded(), "0 ") << "a missing store is none";
  folder.Block(store);
  EXPECT_EQ(Loaded(), "0 ");
  EXPECT_NE(answers.last().find(store), std::string::npos);
  EXPECT_EQ(answers.messages.size(), 1u);
}

}  // namespace
