// bench_memory_of COMMAND [ARGUMENT...]
// Runs a command without its output. Prints 0 and the most memory that it had, in KB.
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <iostream>

int main(int argc, char** argv) {
  if (argc < 2) return 2;
  const pid_t child = fork();
  if (child == 0) {
    dup2(open("/dev/null", O_WRONLY), STDOUT_FILENO);
    execv(argv[1], argv + 1);
    _exit(127);
  }
  int status = 0;
  rusage used = {};
  if (child < 0 || wait4(child, &status, 0, &used) != child || status != 0) return 1;
  std::cout << "0 " << used.ru_maxrss << '\n';
  return 0;
}
