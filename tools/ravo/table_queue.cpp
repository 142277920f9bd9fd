#include "table_queue.h"

#include <system_error>
#include <thread>
#include <utility>

namespace tool {

BlockQueue::BlockQueue(BlockReader& reader, std::size_t slots, Writer write)
    : reader_(reader), write_(std::move(write)), slots_(slots) {}

// Waits until the slot of the next block is free; returns false after Stop.
bool BlockQueue::WaitForSlot() {
  std::unique_lock lock(state_);
  changed_.wait(lock, [this] { return is_stopped_ || next_read_ - next_write_ < slots_.size(); });
  return !is_stopped_;
}

BlockWork* BlockQueue::Take() {
  const std::lock_guard input(input_);
  if (is_at_end_ || !WaitForSlot()) return nullptr;
  BlockWork& work = SlotOf(next_read_);
  is_at_end_ = !reader_.Next(work.block);
  if (is_at_end_) return nullptr;
  work.number = next_read_;
  // The waits of other workers read it under the other lock.
  const std::lock_guard lock(state_);
  ++next_read_;
  return &work;
}

bool BlockQueue::WriteEarly(BlockWork& work) {
  std::unique_lock lock(state_);
  changed_.wait(lock, [&] { return is_stopped_ || (next_write_ == work.number && !is_writing_); });
  if (is_stopped_) return false;
  lock.unlock();
  write_(work);
  return true;
}

void BlockQueue::Finish(BlockWork& work) {
  std::unique_lock lock(state_);
  work.is_done = true;
  if (is_writing_) return;
  is_writing_ = true;
  while (!is_stopped_ && SlotOf(next_write_).is_done) {
    BlockWork& next = SlotOf(next_write_);
    lock.unlock();
    write_(next);
    lock.lock();
    next.is_done = false;
    ++next_write_;
    changed_.notify_all();
  }
  is_writing_ = false;
  changed_.notify_all();
}

void BlockQueue::Stop(std::exception_ptr error) {
  const std::lock_guard lock(state_);
  if (!error_) error_ = std::move(error);
  is_stopped_ = true;
  changed_.notify_all();
}

void BlockQueue::Rethrow() const {
  if (error_) std::rethrow_exception(error_);
}

void RunOnThreads(unsigned count, const std::function<void()>& work) {
  std::vector<std::thread> threads;
  try {
    while (threads.size() + 1 < count) threads.emplace_back(work);
  } catch (const std::system_error&) {
    // Untested: the system has no more threads; those that run do the work.
    threads.shrink_to_fit();
  }
  work();
  for (std::thread& thread : threads) thread.join();
}

}  // namespace tool
