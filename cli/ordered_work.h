#ifndef KELPOWER_CLI_ORDERED_WORK_H
#define KELPOWER_CLI_ORDERED_WORK_H

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

/// A part of the work, and how large it is for the progress.
struct Block {
  std::string text;
  std::size_t first = 0;  // of what it is about, where that is no text
  std::size_t count = 0;
};

/// The result of a block. When it is not whole, nothing after it is wanted.
struct BlockResult {
  std::string text;
  bool isWhole = true;
};

/// Work on blocks that threads do side by side, and whose results come out in order. Only a few blocks are in memory at
/// a time.
struct OrderedWork {
  /// The next block; it is asked for by one thread at a time.
  std::function<std::optional<Block>()> next;
  /// Makes what works on blocks, once for each thread.
  std::function<std::function<BlockResult(const Block&)>()> makeWorker;
  /// Takes the results in order, from one thread at a time.
  std::function<void(const Block&, std::string)> take;
  /// Is called by the calling thread some ten times a second.
  std::function<void()> look;

  /// Does the work with so many threads. Gives whether it came to its end. What one of the functions throws ends the
  /// work and is thrown again.
  bool Run(unsigned threads) const;
};

#endif
