#include <benchmark/benchmark.h>

#include "data.h"
#include "data/icon_packer.h"
#include "forms/forms.h"
#include "forms_layer/user.h"
#include "tool.h"

namespace {

using namespace ostrane;

// Measures a click on an icon file until its series is drawn, without a screen.
void draw_series(benchmark::State& state) {
  const auto count = static_cast<int>(state.range(0));
  const std::filesystem::path folder = bench::scratch("series" + std::to_string(count));
  bench::write_archive(folder,
                       {{"SERIES.SHP", shp_file(bench::mixed_pictures(count, 32))}, {"N", "n"}});
  bench::start_tool_on(folder);
  bench::open_archive("C:\\");
  bench::resize_window(2600, 2000, 999);
  for (auto _ : state) forms_layer::user::select_row(Form1.List1, 0);
  if (Form1.Text3.Text() != " 1 -  " + std::to_string(count)) {
    state.SkipWithError(Form1.Text3.Text().c_str());
  }
}
BENCHMARK(draw_series)->Arg(300)->Arg(500)->Arg(999)->Unit(benchmark::kMicrosecond);

}  // namespace
