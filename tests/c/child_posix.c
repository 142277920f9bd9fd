#define _POSIX_C_SOURCE 200809L
#include "child.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

int aborts(void (*function)(void)) {
  int status = 0;
  const pid_t child = fork();
  if (child == 0) {
    /* The message is expected. */
    (void)close(STDERR_FILENO);
    function();
    _exit(0);
  }
  return child > 0 && waitpid(child, &status, 0) == child && WIFSIGNALED(status) &&
         WTERMSIG(status) == SIGABRT;
}
