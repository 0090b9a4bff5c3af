// SPDX-License-Identifier: GPL-3.0-or-later
#include "console/running_console.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <stdexcept>
#include <utility>

namespace kelvra::test {

namespace {

void Require(bool condition, const char* what) {
    if (!condition) throw std::runtime_error(what);
}

void CloseEnd(int& end) {
    if (end >= 0) ::close(std::exchange(end, -1));
}

std::string ReadAll(int end) {
    std::string bytes;
    char buffer[4096];
    for (ssize_t got = 0; (got = ::read(end, buffer, sizeof buffer)) > 0;)
        bytes.append(buffer, static_cast<std::size_t>(got));
    return bytes;
}

}  // namespace

RunningConsole::RunningConsole(const std::string& driverDir,
                               const std::vector<std::string>& words) {
    std::vector<std::string> arguments{KELVRA_CONSOLE,
                                       "--data-dir",
                                       data.Path(),
                                       "--driver-dir",
                                       driverDir.empty() ? data.Path() : driverDir,
                                       "--clock",
                                       "2005-03-07 12:00:00",
                                       "--seed",
                                       "1"};
    arguments.insert(arguments.end(), words.begin(), words.end());
    std::vector<char*> pointers;
    for (std::string& argument : arguments) pointers.push_back(argument.data());
    pointers.push_back(nullptr);

    for (int* pipe : {input_, output_, errors_}) Require(::pipe2(pipe, O_CLOEXEC) == 0, "no pipe");
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, input_[0], STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, output_[1], STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, errors_[1], STDERR_FILENO);
    const int error =
        ::posix_spawn(&process_, KELVRA_CONSOLE, &actions, nullptr, pointers.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    Require(error == 0, "the console does not start");
    CloseEnd(output_[1]);
    CloseEnd(errors_[1]);
}

RunningConsole::~RunningConsole() {
    for (int* pipe : {input_, output_, errors_})
        for (int end = 0; end < 2; ++end) CloseEnd(pipe[end]);
    if (process_ > 0) ::waitpid(process_, nullptr, 0);
}

void RunningConsole::Write(const std::string& bytes) const {
    for (std::size_t done = 0; done < bytes.size();) {
        const ssize_t written = ::write(input_[1], bytes.data() + done, bytes.size() - done);
        Require(written > 0, "the console takes no input");
        done += static_cast<std::size_t>(written);
    }
}

std::string RunningConsole::Line() const {
    std::string line;
    for (char byte = 0; byte != '\n' && ::read(output_[0], &byte, 1) == 1;) line += byte;
    return line;
}

void RunningConsole::Signal(int signal) const {
    ::kill(process_, signal);
}

RunningConsole::End RunningConsole::Finish() {
    CloseEnd(input_[1]);
    End end{};
    end.output = ReadAll(output_[0]);
    end.errors = ReadAll(errors_[0]);
    int status = 0;
    ::waitpid(std::exchange(process_, -1), &status, 0);
    end.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    end.unread = ReadAll(input_[0]);
    return end;
}

}  // namespace kelvra::test
