#pragma once

#include "table_blocks.h"

#include <condition_variable>
#include <cstddef>
#include <exception>
#include <functional>
#include <mutex>
#include <string>
#include <vector>

namespace tool {

/// A block of a table and what its worker makes of it.
struct BlockWork {
  struct Piece {
    std::size_t begin = 0;
    std::size_t end = 0;
  };

  TableBlock block;
  std::string lines;            // the findings, a line each
  std::size_t findings = 0;     // how many were found since the last write
  std::vector<Piece> rejected;  // rows with findings, in order
  std::size_t number = 0;
  bool is_done = false;
};

/// Hands the blocks of a table to workers and writes what they make of them in the order of the table. A
/// worker that wants a block reads it; the one that completes the next block in order writes it, so no thread
/// only reads or only writes. Memory is linear in `slots`: a worker waits for a block until an earlier one is
/// written.
class BlockQueue {
 public:
  using Writer = std::function<void(BlockWork&)>;

  BlockQueue(BlockReader& reader, std::size_t slots, Writer write);

  /// Returns the next block, or null at the end and after `Stop`. Throws what the reader throws.
  [[nodiscard]] BlockWork* Take();
  /// Writes what there is of a block that is not done, once it is its turn; returns false after `Stop`.
  bool WriteEarly(BlockWork& work);
  /// Marks a block as done; writes it, and later ones that are done, if it is its turn.
  void Finish(BlockWork& work);
  /// Ends the work with an error; the first one counts.
  void Stop(std::exception_ptr error);
  /// Throws the error that ended the work, if there is one.
  void Rethrow() const;

 private:
  [[nodiscard]] BlockWork& SlotOf(std::size_t number) { return slots_[number % slots_.size()]; }
  [[nodiscard]] bool WaitForSlot();

  BlockReader& reader_;
  Writer write_;
  std::vector<BlockWork> slots_;

  std::mutex input_;  // held while a block is read
  std::size_t next_read_ = 0;
  bool is_at_end_ = false;

  std::mutex state_;  // of all that follows
  std::condition_variable changed_;
  std::size_t next_write_ = 0;
  bool is_writing_ = false;
  bool is_stopped_ = false;
  std::exception_ptr error_;
};

/// Runs `work` on `count` threads, this one included, and returns when all have returned. Fewer threads than
/// that run it if the system has no more. `work` does not throw.
void RunOnThreads(unsigned count, const std::function<void()>& work);

}  // namespace tool
