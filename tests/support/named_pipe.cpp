#include "support/named_pipe.h"

#include <stdexcept>

#ifdef _WIN32
#include <windows.h>

namespace ravo::test {

NamedPipe::NamedPipe(std::string bytes) {
  const std::wstring name = L"\\\\.\\pipe\\" + folder_.Path().filename().wstring();
  name_.assign(name.begin(), name.end());
  server_ = CreateNamedPipeW(name.c_str(), PIPE_ACCESS_OUTBOUND, PIPE_TYPE_BYTE, 1, 4096, 4096, 0, nullptr);
  if (server_ == INVALID_HANDLE_VALUE) throw std::runtime_error("no pipe can be made");
  writer_ = std::thread([this, bytes = std::move(bytes)] { Write(bytes); });
}

void NamedPipe::Write(const std::string& bytes) {
  DWORD written = 0;
  ConnectNamedPipe(server_, nullptr);
  WriteFile(server_, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
  FlushFileBuffers(server_);
  CloseHandle(server_);
}

void NamedPipe::Drain() const {
  const std::wstring name(name_.begin(), name_.end());
  const HANDLE reader = CreateFileW(name.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  if (reader == INVALID_HANDLE_VALUE) return;
  char piece[4096];
  DWORD count = 0;
  while (ReadFile(reader, piece, sizeof piece, &count, nullptr)) continue;
  CloseHandle(reader);
}

#else
#include <csignal>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ravo::test {

NamedPipe::NamedPipe(std::string bytes) : name_(folder_.File(u"pipe")) {
  if (mkfifo((folder_.Path() / "pipe").c_str(), 0600) != 0) throw std::runtime_error("no pipe can be made");
  writer_ = std::thread([this, bytes = std::move(bytes)] { Write(bytes); });
}

void NamedPipe::Write(const std::string& bytes) {
  // Without this, a reader that closes the pipe early would end the program.
  sigset_t broken_pipe;
  sigemptyset(&broken_pipe);
  sigaddset(&broken_pipe, SIGPIPE);
  pthread_sigmask(SIG_BLOCK, &broken_pipe, nullptr);
  const int pipe = open((folder_.Path() / "pipe").c_str(), O_WRONLY | O_CLOEXEC);
  for (std::size_t done = 0; done < bytes.size();) {
    const ssize_t count = write(pipe, bytes.data() + done, bytes.size() - done);
    if (count <= 0) break;
    done += static_cast<std::size_t>(count);
  }
  close(pipe);
  is_written_ = true;
}

// A non-blocking read returns 0 before the writer opens the pipe, too.
void NamedPipe::Drain() const {
  const int reader = open((folder_.Path() / "pipe").c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  char piece[4096];
  while (!is_written_) {
    if (read(reader, piece, sizeof piece) <= 0) std::this_thread::yield();
  }
  close(reader);
}

#endif

NamedPipe::~NamedPipe() {
  Drain();
  writer_.join();
}

}  // namespace ravo::test
