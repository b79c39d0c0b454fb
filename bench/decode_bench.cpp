#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstring>
#include <memory>
#include <numeric>

#include "data.h"
#include "data/icon_packer.h"
#include "forms/forms.h"
#include "forms_layer/user.h"
#include "icons/decode_icon.h"
#include "icons/series_reader.h"
#include "png_pictures.h"
#include "state/open_archive.h"
#include "state/tool_state.h"
#include "tool.h"

namespace {

using namespace ostrane;

constexpr int icons = 5000;
constexpr int side = 64;

const std::vector<picture>& pictures() {
  static const std::vector<picture> drawn = bench::mixed_pictures(icons, side);
  return drawn;
}

forms_layer::picture_box& size_slot(std::int16_t index) {
  forms_layer::picture_box& slot = Form1.s16_image(index);
  slot.Width = (side + 2) * tool_state.twips_per_pixel_x;
  slot.Height = (side + 2) * tool_state.twips_per_pixel_y;
  return slot;
}

void start_tool_on_icons() {
  const std::filesystem::path folder = bench::scratch("icons");
  bench::write_archive(folder, {{"ICONS.SHP", shp_file(pictures())}, {"N", "n"}});
  bench::start_tool_on(folder);
  bench::open_archive("C:\\");
  forms_layer::user::select_row(Form1.List1, 0);
}

void decode_icons_from_file(benchmark::State& state) {
  start_tool_on_icons();
  forms_layer::picture_box& slot = size_slot(1);
  tool_state.current_slot = 1;
  for (auto _ : state) {
    open_archive_file();
    read_directory();
    for (std::int16_t i = 1; i <= icons; ++i) {
      tool_state.icon_number = i;
      begin_current_icon();
      slot.Cls();
      decode_icon();
    }
    tool_state.archive_file.close();
  }
  const auto& last = pictures().back();
  const forms_layer::colour corner =
      tool_state.colour_table[static_cast<std::size_t>(last.at(side - 1, side - 1))];
  if (slot.pixel(side - 1, side - 1) != corner) state.SkipWithError("not decoded");
}
BENCHMARK(decode_icons_from_file)->Unit(benchmark::kMicrosecond);

void libpng_from_file(benchmark::State& state) {
  std::string all;
  for (const picture& drawn : pictures()) all += bench::png_of(drawn);
  const std::filesystem::path path = bench::scratch("png") / "all";
  bench::write_file(path, all);
  std::vector<unsigned char> pixels(std::size_t{side} * side);
  std::string bytes(all.size(), '\0');
  for (auto _ : state) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                               std::fclose);
    bytes.resize(std::fread(bytes.data(), 1, bytes.size(), file.get()));
    const char* at = bytes.data();
    for (int i = 0; i < icons; ++i) bench::decode_png(at, pixels.data());
    benchmark::DoNotOptimize(pixels.data());
  }
}
BENCHMARK(libpng_from_file)->Unit(benchmark::kMicrosecond);

struct stream_in_memory {
  icon_head head;
  std::string bytes;
};

std::vector<stream_in_memory> all_streams() {
  std::vector<stream_in_memory> streams;
  for (const picture& drawn : pictures()) {
    shp_icon icon = make_icon(drawn);
    streams.push_back({icon.head, std::move(icon.stream)});
  }
  return streams;
}

void decode_streams_in_memory(benchmark::State& state) {
  start_tool_on_icons();
  const std::vector<stream_in_memory> streams = all_streams();
  size_slot(1);
  tool_state.current_slot = 1;
  for (auto _ : state) {
    for (const stream_in_memory& stream : streams) {
      tool_state.icon_header = stream.head;
      std::memcpy(tool_state.stream.read_buffer.data(), stream.bytes.data(), stream.bytes.size());
      tool_state.stream.read_buffer_fill = static_cast<std::int32_t>(stream.bytes.size());
      tool_state.stream.read_buffer_pos = 0;
      decode_icon();
    }
    benchmark::ClobberMemory();
  }
}
BENCHMARK(decode_streams_in_memory)->Unit(benchmark::kMicrosecond);

// Decodes without clipping, damage tracking and checks of the buffer's end.
void bare_loop(const std::string& stream, const forms_layer::colour* colours,
               forms_layer::colour* row) {
  const auto* at = reinterpret_cast<const unsigned char*>(stream.data());
  forms_layer::colour* to = row;
  for (int rows = 0; rows < side;) {
    const unsigned op = *at++;
    if (op == 0) {
      ++rows;
      row += side;
      to = row;
    } else if (op == 1) {
      to += *at++;
    } else if (op % 2 == 0) {
      const forms_layer::colour colour = colours[*at++];
      for (unsigned i = 0; i < op / 2; ++i) *to++ = colour;
    } else {
      for (unsigned i = 0; i < op / 2; ++i) *to++ = colours[*at++];
    }
  }
}

void bare_loop_over_streams(benchmark::State& state) {
  const std::vector<stream_in_memory> streams = all_streams();
  std::vector<forms_layer::colour> pixels(std::size_t{side} * side);
  const std::vector<forms_layer::colour> colours(256, 7);
  for (auto _ : state) {
    for (const stream_in_memory& stream : streams) {
      bare_loop(stream.bytes, colours.data(), pixels.data());
    }
    benchmark::ClobberMemory();
  }
}
BENCHMARK(bare_loop_over_streams)->Unit(benchmark::kMicrosecond);

void memset_of_the_pixels(benchmark::State& state) {
  std::vector<forms_layer::colour> pixels(std::size_t{side} * side);
  for (auto _ : state) {
    for (int i = 0; i < icons; ++i) {
      std::memset(pixels.data(), i, pixels.size() * sizeof(forms_layer::colour));
      benchmark::ClobberMemory();
    }
  }
}
BENCHMARK(memset_of_the_pixels)->Unit(benchmark::kMicrosecond);

}  // namespace
