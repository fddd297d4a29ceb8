// Programs that are asked for times, line by line, so that several can be measured in turns: what else the machine does
// meets all of them alike.
//
// A question is a family's name and a width; an empty line is the same question again. The answer is the seconds of one
// lane and the largest error in ulp, negative where it is not known.
#pragma once

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "bench/median.h"
#include "tools/calls.h"

namespace bench {

struct Answer {
    double seconds, error;
};

// The asked side: answers until the input ends. `begin` prepares for a family and a width and returns what measures.
using Measure = std::function<Answer()>;
inline void answer_questions(const std::function<Measure(const grid::Family&, int width)>& begin) {
    Measure measure;
    for (std::string question; std::getline(std::cin, question);) {
        std::istringstream words(question);
        std::string name;
        int width = 0;
        if (words >> name >> width) measure = begin(*grid::find(name), width);
        Answer answer = measure();
        std::cout << answer.seconds << ' ' << answer.error << std::endl;
    }
}

// The asking side: a process of a command, a program and its arguments, with variables added to its environment.
class Process {
  public:
    using Variables = std::vector<std::pair<std::string, std::string>>;

    explicit Process(std::vector<std::string> command, const Variables& variables = {}) {
        int to[2], from[2];
        // Closed in the programs started later, which would otherwise keep this one's input from ending.
        if (pipe2(to, O_CLOEXEC) != 0 || pipe2(from, O_CLOEXEC) != 0) std::exit(1);
        id_ = fork();
        if (id_ == 0) {
            dup2(to[0], 0);
            dup2(from[1], 1);
            for (const auto& [name, value] : variables) setenv(name.c_str(), value.c_str(), 1);
            std::vector<char*> words;
            for (std::string& word : command) words.push_back(word.data());
            words.push_back(nullptr);
            execv(words[0], words.data());
            _exit(1);
        }
        close(to[0]);
        close(from[1]);
        to_ = fdopen(to[1], "w");
        from_ = fdopen(from[0], "r");
    }
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;
    ~Process() {
        std::fclose(to_);
        std::fclose(from_);
        waitpid(id_, nullptr, 0);
    }

    Answer ask(const std::string& question) {
        std::fprintf(to_, "%s\n", question.c_str());
        std::fflush(to_);
        Answer answer = {};
        if (std::fscanf(from_, "%lf %lf", &answer.seconds, &answer.error) != 2) {
            std::fprintf(stderr, "no answer to: %s\n", question.c_str());
            std::exit(1);
        }
        return answer;
    }

  private:
    pid_t id_;
    std::FILE *to_, *from_;
};

// Asks all of them for a family and a width, then `rounds` times in turns: the median times, and the errors.
inline std::vector<Answer> ask_in_turns(const std::vector<Process*>& processes, const std::string& family, int width,
                                        int rounds) {
    std::string question = family + " " + std::to_string(width);
    std::vector<Answer> answers;
    for (Process* process : processes) answers.push_back(process->ask(question));
    std::vector<std::vector<double>> times(processes.size());
    for (int round = 0; round < rounds; ++round)
        for (size_t i = 0; i < processes.size(); ++i) times[i].push_back(processes[i]->ask("").seconds);
    for (size_t i = 0; i < processes.size(); ++i) answers[i].seconds = median(times[i]);
    return answers;
}

}  // namespace bench
