// Runs a fuzz target without libFuzzer: the seeds, then a fixed number of seeded mutations of them.
#include <QDir>
#include <QFile>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

#include "tests/fuzz/Target.h"

namespace {
constexpr std::size_t MaxSize = 4096;

class Mutator {
 public:
  explicit Mutator(std::vector<QByteArray> seeds) : seeds_(std::move(seeds)) {}

  QByteArray Next() {
    QByteArray bytes = seeds_[Below(seeds_.size())];
    for (auto n = 1 + Below(6); n > 0; --n) Change(bytes);
    bytes.truncate(static_cast<qsizetype>(MaxSize));
    return bytes;
  }

 private:
  std::size_t Below(std::size_t n) { return n ? random_() % n : 0; }
  qsizetype Place(const QByteArray& bytes) {
    return static_cast<qsizetype>(Below(static_cast<std::size_t>(bytes.size()) + 1));
  }

  void Change(QByteArray& bytes) {
    const qsizetype at = Place(bytes);
    const auto length = static_cast<qsizetype>(1 + Below(Below(4) ? 8 : 200));
    switch (Below(6)) {
      case 0:
        bytes.insert(at, static_cast<char>(random_()));
        return;
      case 1:
        bytes.remove(at, length);
        return;
      case 2:
        bytes.insert(at, bytes.mid(Place(bytes), length));
        return;
      case 3: {  // a piece of another seed
        const QByteArray& other = seeds_[Below(seeds_.size())];
        bytes.replace(at, length, other.mid(Place(other), length));
        return;
      }
      case 4:
        bytes.truncate(at);
        return;
      default:
        if (at < bytes.size())
          bytes[at] = static_cast<char>(Below(2) ? random_() : bytes[at] ^ (1 << Below(8)));
    }
  }

  std::vector<QByteArray> seeds_;
  std::mt19937 random_{1};
};

void Run(const QByteArray& bytes) {
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                         static_cast<std::size_t>(bytes.size()));
}
}  // namespace

// driver COUNT SEEDFILE...
int main(int argc, char** argv) {
  std::vector<QByteArray> seeds;
  for (int i = 2; i < argc; ++i) {
    QFile file(QString::fromLocal8Bit(argv[i]));
    if (!file.open(QIODevice::ReadOnly)) {
      std::fprintf(stderr, "cannot read %s\n", argv[i]);
      return 2;
    }
    seeds.push_back(file.readAll());
  }
  if (seeds.empty()) {
    std::fprintf(stderr, "no seeds\n");
    return 2;
  }
  for (const QByteArray& seed : seeds) Run(seed);
  Mutator mutator(seeds);
  const int count = std::atoi(argv[1]);
  for (int i = 0; i < count; ++i) {
    const QByteArray bytes = mutator.Next();
    // Written before it is run, so that the input of a crash is not lost.
    if (const char* keep = std::getenv("VRX_FUZZ_INPUT")) {
      QFile file(QString::fromLocal8Bit(keep));
      if (file.open(QIODevice::WriteOnly)) file.write(bytes);
    }
    Run(bytes);
  }
  std::printf("%d inputs\n", count);
  return 0;
}
