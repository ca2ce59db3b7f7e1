// What the picture box promises: known pictures are shown, everything else fails by its number.
#include "contract/error_of.h"
#include "contract/test_form.h"
#include "platform/files.h"
#include "support/files.h"

namespace {

TEST_F(FormTest, PicturesAreKnownByTheirBytesAndWhatFailsLeavesTheBoxEmpty) {
  // 2 by 2 pixels in 24 bits.
  const std::string bitmap =
      std::string("BM\x46\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x02\0\0\0\x02\0\0\0\x01\0\x18\0", 30) +
      std::string(24, '\0') + std::string(16, '\x7F');
  const struct {
    const char* Name;
    std::string Bytes;
    int Error;
  } rows[] = {{"small.bmp", bitmap, 0},
              {"&#26085;.jpg", bitmap, 0},
              {"held.bmp", bitmap, 70},
              {"empty.bmp", "", 481},
              {"text.bmp", std::string(200, 't'), 481},
              {"header.bmp", bitmap.substr(0, 54), 481},
              {"half.bmp", bitmap.substr(0, 60), 481},
              {"start.bmp", bitmap.substr(0, 10), 481},
              {"start.jpg", std::string("\xFF\xD8\xFF\xE0\0\x10JFIF\0\1\1\0\0\1\0\1\0\0", 20), 481}};
  TestFiles::Start();
  for (const auto& row : rows) TestFiles::Put(row.Name, row.Bytes);
  TestFiles::HoldByOther("held.bmp", true);
  Picture& box = form.PhotoPic;
  for (const auto& row : rows) {
    EXPECT_TRUE(box.Empty());
    box.Load("small.bmp");
    EXPECT_FALSE(box.Empty());
    EXPECT_EQ(ErrorOf([&] { box.Load(row.Name); }), row.Error) << row.Name;
    EXPECT_EQ(box.Empty(), row.Error != 0) << row.Name;
    box.Clear();
  }
  box.Load("small.bmp");
  EXPECT_EQ(box.FileName(), "small.bmp");
  // A file is read again only when it has changed, and the box does not hold it.
  TestFiles::HoldByOther("small.bmp", true);
  box.Load("small.bmp");
  TestFiles::ReleaseByOther();
  TestFiles::Put("small.bmp", "no picture");
  EXPECT_EQ(ErrorOf([&] { box.Load("small.bmp"); }), kInvalidPicture);
  Files::Erase("small.bmp");
  TestFiles::Finish();
}

}  // namespace
