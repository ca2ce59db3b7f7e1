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
  const std::pair<const char*, std::string> files[] = {
      {"small.bmp", bitmap},
      {"&#26085;.jpg", bitmap},
      {"held.bmp", bitmap},
      {"empty.bmp", ""},
      {"text.bmp", std::string(200, 't')},
      {"header.bmp", bitmap.substr(0, 54)},
      {"half.bmp", bitmap.substr(0, 60)},
      {"start.bmp", bitmap.substr(0, 10)},
      {"start.jpg", std::string("\xFF\xD8\xFF\xE0\0\x10JFIF\0\1\1\0\0\1\0\1\0\0", 20)}};
  TestFiles::Start();
  for (const auto& [name, bytes] : files) TestFiles::Put(name, bytes);
  TestFiles::HoldByOther("held.bmp", true);
  TestFiles::MakeFolder("folder");
  const std::string full_name = TestFiles::Folder() + "\\&#26085;.jpg";
  const std::pair<std::string, int> rows[] = {
      {"small.bmp", 0},    {full_name, 0},      {"empty.bmp", 481},         {"text.bmp", 481},
      {"header.bmp", 481}, {"half.bmp", 481},   {"start.bmp", 481},         {"start.jpg", 481},
      {"held.bmp", 70},    {"missing.bmp", 53}, {"nowhere\\small.bmp", 76}, {"folder", 75}};
  Picture& box = form.PhotoPic;
  for (const auto& [name, number] : rows) {
    EXPECT_TRUE(box.Empty());
    box.Load("small.bmp");
    EXPECT_FALSE(box.Empty());
    EXPECT_EQ(ErrorOf([&, name = name] { box.Load(name); }), number) << name;
    EXPECT_EQ(box.Empty(), number != 0) << name;
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
