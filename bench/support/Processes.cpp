#include "bench/support/Processes.h"

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <chrono>
#include <stdexcept>

extern char** environ;

namespace orvanta::bench {

ProcessCost RunProcess(const std::vector<std::string>& arguments) {
    std::vector<char*> argv;
    for (const std::string& s : arguments)
        argv.push_back(const_cast<char*>(s.c_str()));
    argv.push_back(nullptr);
    const auto start = std::chrono::steady_clock::now();
    pid_t process = 0;
    if (posix_spawnp(&process, argv[0], nullptr, nullptr, argv.data(), environ) != 0) {
        throw std::runtime_error("cannot start " + arguments[0]);
    }
    int nStatus = 0;
    rusage usage{};
    wait4(process, &nStatus, 0, &usage);
    if (!WIFEXITED(nStatus) || WEXITSTATUS(nStatus) != 0) throw std::runtime_error(arguments[0] + " failed");
    const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - start;
    return {spent.count(), static_cast<double>(usage.ru_maxrss) * 1024 / 1e6};
}

} // namespace orvanta::bench
