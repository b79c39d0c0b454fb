// bench_bare_copy extract|build FOLDER
// Does the same as bench_job with a plain loop of open, read, write and close, and prints the
// microseconds. extract splits ostrane.dat by its index into the folder "out". build asks for the
// size of each file in FOLDER, as an index needs it, and writes as many bytes as an index and the
// files into OSTRANE.DAT.
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

constexpr std::size_t record_size = 17;

#ifdef O_BINARY  // Windows
constexpr int binary = O_BINARY;
#else
constexpr int binary = 0;
#endif

int open_file(const fs::path& path, int flags) {
  const int file = open(path.string().c_str(), flags | binary, 0644);
  if (file < 0) throw std::runtime_error("cannot open " + path.string());
  return file;
}

// Copies at most `size` bytes.
void copy(int from, int to, std::size_t size) {
  static std::vector<char> buffer(std::size_t{1} << 18U);
  while (size > 0) {
    const auto wanted = static_cast<unsigned>(std::min(size, buffer.size()));
    const auto got = read(from, buffer.data(), wanted);
    if (got <= 0) return;
    if (write(to, buffer.data(), static_cast<unsigned>(got)) != got) {
      throw std::runtime_error("cannot write");
    }
    size -= static_cast<std::size_t>(got);
  }
}

std::uint32_t number_at(const std::vector<unsigned char>& bytes, std::size_t at) {
  std::uint32_t number = 0;
  for (std::size_t i = 4; i > 0; --i) number = number << 8U | bytes[at + i - 1];
  return number;
}

void extract(const fs::path& folder) {
  const int archive = open_file(folder / "ostrane.dat", O_RDONLY);
  std::vector<unsigned char> index(4);
  if (read(archive, index.data(), 4) != 4) throw std::runtime_error("no index");
  const std::size_t count = number_at(index, 0);
  index.resize(record_size * count);
  if (read(archive, index.data(), static_cast<unsigned>(index.size())) < 0) {
    throw std::runtime_error("no index");
  }
  for (std::size_t i = 0; i + 1 < count; ++i) {
    const std::size_t at = i * record_size;
    const std::string name(reinterpret_cast<const char*>(index.data() + at + 4), 13);
    const int file =
        open_file(folder / "out" / name.substr(0, name.find('\0')), O_WRONLY | O_CREAT | O_TRUNC);
    copy(archive, file, number_at(index, at + record_size) - number_at(index, at));
    close(file);
  }
  close(archive);
}

void build(const fs::path& folder) {
  std::vector<fs::path> files;
  std::uintmax_t size = 0;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    files.push_back(entry.path());
    size += entry.file_size();
  }
  const int archive = open_file(folder / "OSTRANE.DAT", O_WRONLY | O_CREAT | O_TRUNC);
  const std::vector<char> index(4 + record_size * (files.size() + 1), static_cast<char>(size));
  if (write(archive, index.data(), static_cast<unsigned>(index.size())) < 0) {
    throw std::runtime_error("cannot write");
  }
  for (const fs::path& path : files) {
    const int file = open_file(path, O_RDONLY);
    copy(file, archive, SIZE_MAX);
    close(file);
  }
  close(archive);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: bench_bare_copy extract|build FOLDER\n";
    return 2;
  }
  using clock = std::chrono::steady_clock;
  try {
    const auto start = clock::now();
    std::string(argv[1]) == "extract" ? extract(argv[2]) : build(argv[2]);
    const auto took = clock::now() - start;
    std::cout << std::chrono::duration_cast<std::chrono::microseconds>(took).count() << " 0\n";
  } catch (const std::exception& failure) {
    std::cerr << "bench_bare_copy: " << failure.what() << '\n';
    return 1;
  }
  return 0;
}
