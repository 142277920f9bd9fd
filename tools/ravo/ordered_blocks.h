#pragma once

#include <condition_variable>
#include <cstddef>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace tool {

/// Reads, transforms and writes the blocks of a file on several threads; the output has the order of the
/// input.
///
/// A thread that wants a block reads it, one thread at a time, and the one that completes the next block in
/// order writes it, and those after it that are complete. No thread only reads or only writes, and the memory
/// is that of the slots.
template <class Block>
class OrderedBlocks {
 public:
  explicit OrderedBlocks(std::size_t slots) : slots_(slots) {}

  /// Runs until `read` or `write` returns false. `transform` makes, once per thread, the function that
  /// transforms a block; its second argument writes what there is of a block that is not done, once it is its
  /// turn, and returns false if the work has ended. Throws what one of them throws.
  template <class Read, class Transform, class Write>
  void Run(unsigned threads, Read read, Transform transform, Write write) {
    const auto work = [&] {
      try {
        auto transform_block = transform();
        while (Slot* const slot = Take(read)) {
          transform_block(slot->block, [&] { return WriteEarly(*slot, write); });
          Finish(*slot, write);
        }
      } catch (...) {
        Stop(std::current_exception());
      }
    };
    std::vector<std::thread> others;
    try {
      while (others.size() + 1 < threads) others.emplace_back(work);
    } catch (const std::system_error&) {
      // Untested: the system has no more threads. Those that run do the work.
      others.shrink_to_fit();
    }
    work();
    for (std::thread& other : others) other.join();
    if (error_) std::rethrow_exception(error_);
  }

 private:
  struct Slot {
    Block block;
    std::size_t number = 0;
    bool is_done = false;
  };

  // Waits until the slot of the next block is written; returns false after `Stop`.
  bool WaitForSlot() {
    std::unique_lock lock(state_);
    changed_.wait(lock, [this] { return is_stopped_ || next_read_ - next_write_ < slots_.size(); });
    return !is_stopped_;
  }

  template <class Read>
  Slot* Take(Read& read) {
    const std::lock_guard input(input_);
    if (is_at_end_ || !WaitForSlot()) return nullptr;
    Slot& slot = slots_[next_read_ % slots_.size()];
    is_at_end_ = !read(slot.block);
    if (is_at_end_) return nullptr;
    slot.number = next_read_;
    // The waits of the other threads read it under this lock.
    const std::lock_guard lock(state_);
    ++next_read_;
    return &slot;
  }

  template <class Write>
  bool WriteEarly(Slot& slot, Write& write) {
    std::unique_lock lock(state_);
    changed_.wait(lock, [&] { return is_stopped_ || (next_write_ == slot.number && !is_writing_); });
    if (is_stopped_) return false;
    // No other block is written before this one is done.
    lock.unlock();
    if (write(slot.block)) return true;
    Stop(nullptr);
    return false;
  }

  template <class Write>
  void Finish(Slot& done, Write& write) {
    std::unique_lock lock(state_);
    done.is_done = true;
    if (std::exchange(is_writing_, true)) return;
    while (!is_stopped_ && slots_[next_write_ % slots_.size()].is_done) {
      Slot& next = slots_[next_write_ % slots_.size()];
      lock.unlock();
      const bool goes_on = write(next.block);
      lock.lock();
      is_stopped_ = is_stopped_ || !goes_on;
      next.is_done = false;
      ++next_write_;
      changed_.notify_all();
    }
    is_writing_ = false;
    changed_.notify_all();
  }

  void Stop(std::exception_ptr error) {
    const std::lock_guard lock(state_);
    if (!error_) error_ = std::move(error);
    is_stopped_ = true;
    changed_.notify_all();
  }

  std::vector<Slot> slots_;

  std::mutex input_;  // held while a block is read
  bool is_at_end_ = false;

  std::mutex state_;  // of all that follows, and of the marks of the slots
  std::condition_variable changed_;
  std::size_t next_read_ = 0;
  std::size_t next_write_ = 0;
  bool is_writing_ = false;
  bool is_stopped_ = false;
  std::exception_ptr error_;
};

}  // namespace tool
