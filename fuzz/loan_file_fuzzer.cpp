#include <QCoreApplication>
#include <algorithm>
#include <array>
#include <random>

#include "fuzz/LoanFile.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // Qt SQL asks for an application.
  static int argc = 0;
  static const QCoreApplication application(argc, nullptr);
  static_cast<void>(brivane::fuzz::OpenAsLoanFile({data, size}));
  return 0;
}

/// Three times out of four a few bytes change in place: a file whose pages have moved is refused at a glance.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned seed) {
  std::minstd_rand random(seed);
  if (size == 0 || random() % 4 == 0) return LLVMFuzzerMutate(data, size, maxSize);
  const std::size_t place = random() % size;
  std::array<std::uint8_t, 8> piece{};
  const std::size_t length = std::min<std::size_t>(1 + random() % piece.size(), size - place);
  std::copy_n(data + place, length, piece.begin());
  const std::size_t changed = LLVMFuzzerMutate(piece.data(), length, length);
  std::copy_n(piece.begin(), changed, data + place);
  return size;
}
