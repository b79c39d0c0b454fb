#include "data/archive_check.h"

#include "icon_fixture.h"

namespace ostrane {

using archive_check_test = tool_test;

// D does not overlap with its neighbour C. The stream of the icon lacks two rows.
TEST_F(archive_check_test, NamesTheEntriesOfOverlapsAndCutStreams) {
  const icon_head three_rows = plain_icon(3, 3, 0).head;
  const std::string icons = shp_file(std::vector<shp_icon>{{three_rows, stream({6, 1, 0})}});
  const auto end = 134 + static_cast<std::int32_t>(icons.size());
  write(
      "C:\\a.dat",
      index_bytes(6, {{106, "A"}, {126, "B"}, {114, "C"}, {118, "D"}, {134, "I.SHP"}, {end, ""}}) +
          std::string(28, ' ') + icons);
  texts seen;
  check_archive(
      {disk_path("C:\\a.dat"), u8"a.dat"},
      [&seen](const std::string& name, const std::string& fault) {
        seen.push_back(name + ": " + fault);
      },
      [](std::size_t, std::size_t, const std::string&) {});
  EXPECT_EQ(seen, (texts{"B: its offset 126 is out of order: the next one is 114",
                         "C: it overlaps with A", "D: it overlaps with A",
                         "I.SHP: icon 1: its stream ends before row 2"}));
}

}  // namespace ostrane
