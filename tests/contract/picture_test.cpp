// What the picture box promises: known pictures are shown, everything else fails by its number.
#include <gtest/gtest.h>

#include "contract/test_form.h"
#include "platform/controls.h"
#include "platform/files.h"
#include "platform/runtime_error.h"
#include "support/files.h"
#include "support/user.h"

namespace {

// A bitmap of 2 by 2 pixels in 24 bits.
std::string SmallBitmap() {
  std::string bytes("BM\x46\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x02\0\0\0\x02\0\0\0\x01\0\x18\0", 30);
  bytes.append(24, '\0');
  bytes.append("\xFF\0\0\0\xFF\0\0\0\0\0\xFF\xFF\xFF\xFF\0\0", 16);
  return bytes;
}

class PictureTest : public testing::Test {
 protected:
  PictureTest() { TestFiles::Start(); }
  ~PictureTest() override { TestFiles::Finish(); }

  // The number that loading the file fails with, 0 when it does not.
  int FailureOf(const std::string& name) {
    try {
      form.PhotoPic.Load(name);
      return 0;
    } catch (const RuntimeError& error) {
      return error.Number;
    }
  }

  User user;
  TestForm form;
};

TEST_F(PictureTest, ShowsAKnownPictureAndLetsGoOfItsFile) {
  TestFiles::Put("small.bmp", SmallBitmap());
  EXPECT_TRUE(form.PhotoPic.Empty());
  EXPECT_EQ(FailureOf("small.bmp"), 0);
  EXPECT_FALSE(form.PhotoPic.Empty());
  EXPECT_EQ(form.PhotoPic.FileName(), "small.bmp");
  Files::Erase("small.bmp");
  form.PhotoPic.Clear();
  EXPECT_TRUE(form.PhotoPic.Empty());
}

TEST_F(PictureTest, BytesCountNotTheNamesEnding) {
  TestFiles::Put("small.jpg", SmallBitmap());
  EXPECT_EQ(FailureOf(TestFiles::Folder() + "\\small.jpg"), 0);
  TestFiles::Put("text.bmp",
                 "This is no picture at all, but a text that is long enough to have a header in it, "
                 "were it one.\r\nAnd one more line.\r\n");
  EXPECT_EQ(FailureOf("text.bmp"), kInvalidPicture);
  TestFiles::Put("empty.bmp", "");
  EXPECT_EQ(FailureOf("empty.bmp"), kInvalidPicture);
}

TEST_F(PictureTest, CutFilesAreNoPictures) {
  TestFiles::Put("header.bmp", SmallBitmap().substr(0, 54));
  EXPECT_EQ(FailureOf("header.bmp"), kInvalidPicture);
  TestFiles::Put("half.bmp", SmallBitmap().substr(0, 60));
  EXPECT_EQ(FailureOf("half.bmp"), kInvalidPicture);
  TestFiles::Put("start.bmp", SmallBitmap().substr(0, 10));
  EXPECT_EQ(FailureOf("start.bmp"), kInvalidPicture);
  TestFiles::Put("start.jpg", std::string("\xFF\xD8\xFF\xE0\0\x10JFIF\0\1\1\0\0\1\0\1\0\0", 20));
  EXPECT_EQ(FailureOf("start.jpg"), kInvalidPicture);
}

TEST_F(PictureTest, FilesThatCannotBeReadFailByTheirNumber) {
  TestFiles::Put("held.bmp", SmallBitmap());
  TestFiles::HoldByOther("held.bmp", true);
  EXPECT_EQ(FailureOf("held.bmp"), kPermissionDenied);
  TestFiles::ReleaseByOther();
  EXPECT_EQ(FailureOf("missing.bmp"), kFileNotFound);
  EXPECT_EQ(FailureOf("nowhere\\small.bmp"), kPathNotFound);
  TestFiles::MakeFolder("folder");
  EXPECT_EQ(FailureOf("folder"), kPathFileAccess);
}

TEST_F(PictureTest, ReadsAFileAgainOnlyWhenItHasChanged) {
  TestFiles::Put("small.bmp", SmallBitmap());
  EXPECT_EQ(FailureOf("small.bmp"), 0);
  TestFiles::HoldByOther("small.bmp", true);
  EXPECT_EQ(FailureOf("small.bmp"), 0);
  TestFiles::ReleaseByOther();
  TestFiles::Put("small.bmp", "no picture");
  EXPECT_EQ(FailureOf("small.bmp"), kInvalidPicture);
}

TEST_F(PictureTest, FailingLeavesTheBoxEmpty) {
  TestFiles::Put("small.bmp", SmallBitmap());
  TestFiles::Put("text.bmp", "no picture");
  for (const char* bad : {"text.bmp", "missing.bmp"}) {
    EXPECT_EQ(FailureOf("small.bmp"), 0);
    EXPECT_NE(FailureOf(bad), 0);
    EXPECT_TRUE(form.PhotoPic.Empty()) << bad;
  }
}

}  // namespace
