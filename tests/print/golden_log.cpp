// golden_log MODEL.xml SCRIPT.data OUT.log: what the engine does with a model, as text.

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

#include "tests/print/golden_run.h"

namespace {

std::string Contents(const char* path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    std::fputs("usage: golden_log MODEL.xml SCRIPT.data OUT.log\n", stderr);
    return 2;
  }
  std::ofstream out(argv[3], std::ios::binary);
  out << qm::print::GoldenLog(Contents(argv[1]), Contents(argv[2]));
  return out.good() ? 0 : 1;
}
