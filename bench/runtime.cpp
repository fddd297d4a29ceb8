// The built-ins of an OpenCL run-time beside the library's, called from kernels without the layer and with it: time
// and error, as a table in Markdown.
//
//   runtime <layer> [--rounds=N] [family...]
//
// Two processes of this program hold the kernels, one of them under the layer, and are asked in turns: what else the
// machine does meets both alike. Without families, all accurate ones that are no conversions.
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <iostream>
#include <memory>
#include <sstream>

#include "bench/operands.h"
#include "tests/layer/opencl.h"
#include "tools/builtin_names.h"
#include "tools/reference.h"

namespace {

using grid::Family;

// ---- The process that is asked: a family and a width, answered by the time of a lane and the largest error. -------

constexpr size_t copies = 64;  // of a benchmark's operands, in one buffer
constexpr size_t lanes = bench::elements * copies;

std::string kernel_source(const Family& family, int width) {
    std::string parameters, arguments;
    for (size_t i = 0; i < family.operands.size(); ++i) {
        std::string name = "x" + std::to_string(i);
        parameters += "global const " + grid::vector_name(family.operands[i], width) + "* " + name + ", ";
        arguments += (i ? ", " : "") + name + "[i]";
    }
    parameters += "global " + grid::vector_name(family.results[0], width) + "* r0";
    if (family.results.size() > 1) {
        parameters += ", global " + grid::vector_name(family.results[1], width) + "* r1";
        arguments += ", &r1[i]";
    }
    return "kernel void call(" + parameters +
           ") { size_t i = get_global_id(0); r0[i] = " + grid::builtin_of(family, width) + "(" + arguments + "); }\n";
}

double largest_error(const Family& family, const bench::Arrays& arrays, const void* results) {
    const reference::Operation* operation = reference::find(family.base);
    if (operation == nullptr) return -1;
    auto lane_at = [](const void* array, grid::Lane lane, size_t i) {
        uint64_t bits = 0;
        std::memcpy(&bits, static_cast<const char*>(array) + i * grid::size_of(lane), grid::size_of(lane));
        return bits;
    };
    double worst = 0;
    for (size_t i = 0; i < bench::elements; ++i) {
        reference::Real operands[3], exact[2];
        for (size_t k = 0; k < family.operands.size(); ++k)
            operands[k].set(family.operands[k], lane_at(arrays.operands[k], family.operands[k], i));
        operation->exact(family.is_single ? grid::Lane::f32 : grid::Lane::f64, operands, exact);
        worst = std::max(worst,
                         reference::ulp_distance(family.results[0], lane_at(results, family.results[0], i), exact[0]));
    }
    return worst;
}

class Kernel {
  public:
    Kernel(cl_context context, const Family& family, int width)
        : family_(family), width_(width), workload_(family, bench::Set::in_range) {
        cl_program program = opencl::create_program(context, kernel_source(family, width));
        opencl::check(clBuildProgram(program, 0, nullptr, "", nullptr, nullptr), family.name.c_str());
        kernel_ = opencl::create_kernel(program, "call");
        clReleaseProgram(program);
        for (size_t i = 0; i < family.operands.size(); ++i)
            add(context, workload_.arrays().operands[i], grid::size_of(family.operands[i]));
        for (grid::Lane lane : family.results) add(context, nullptr, grid::size_of(lane));
    }

    double seconds_of_a_lane(const opencl::Queue& queue) const {
        auto begin = std::chrono::steady_clock::now();
        queue.run(kernel_, lanes / static_cast<size_t>(width_));
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count() / lanes;
    }
    double error(const opencl::Queue& queue) {
        size_t result = family_.operands.size();
        buffers_[result]->read(queue.get());
        return largest_error(family_, workload_.arrays(), bytes_[result].data());
    }

  private:
    const Family& family_;
    int width_;
    bench::Workload workload_;
    cl_kernel kernel_;
    std::vector<std::vector<char>> bytes_;
    std::vector<std::unique_ptr<opencl::Buffer>> buffers_;

    void add(cl_context context, const void* operands, size_t lane_size) {
        std::vector<char>& bytes = bytes_.emplace_back(lanes * lane_size);
        for (size_t i = 0; i < copies && operands != nullptr; ++i)
            std::memcpy(&bytes[i * bench::elements * lane_size], operands, bench::elements * lane_size);
        buffers_.push_back(std::make_unique<opencl::Buffer>(context, bytes.data(), bytes.size()));
        buffers_.back()->pass_to(kernel_, static_cast<cl_uint>(buffers_.size() - 1));
    }
};

void answer_questions() {
    cl_device_id device = opencl::all_devices()[0];
    cl_context context = opencl::create_context({device});
    opencl::Queue queue(context, device);
    std::unique_ptr<Kernel> kernel;
    std::string question;
    double error = 0;
    while (std::getline(std::cin, question)) {
        std::istringstream words(question);
        std::string name;
        int width = 0;
        if (words >> name >> width) {  // a new kernel; an empty line is the same one again
            kernel = std::make_unique<Kernel>(context, *grid::find(name), width);
            kernel->seconds_of_a_lane(queue);
            error = kernel->error(queue);
        }
        std::cout << kernel->seconds_of_a_lane(queue) << ' ' << error << std::endl;
    }
}

// ---- The process that asks. ----------------------------------------------------------------------------------------

struct Answer {
    double seconds, error;
};

class Process {
  public:
    Process(const char* program, const char* layer) {
        int to[2], from[2];
        if (pipe(to) != 0 || pipe(from) != 0) std::exit(1);
        id_ = fork();
        if (id_ == 0) {
            dup2(to[0], 0);
            dup2(from[1], 1);
            for (int end : {to[0], to[1], from[0], from[1]}) close(end);
            setenv("POCL_DEVICES", "basic", 0);  // one thread
            if (layer != nullptr) setenv("OPENCL_LAYERS", layer, 1);
            execl(program, program, static_cast<char*>(nullptr));
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

double median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2), values.end());
    return values[values.size() / 2];
}

struct Comparison {
    double ratio, its_time, its_error, our_error;
};

Comparison compare(Process& its, Process& ours, const Family& family, int width, int rounds) {
    std::string question = family.name + " " + std::to_string(width);
    Answer its_first = its.ask(question), our_first = ours.ask(question);
    std::vector<double> its_times, our_times;
    for (int i = 0; i < rounds; ++i) {
        its_times.push_back(its.ask("").seconds);
        our_times.push_back(ours.ask("").seconds);
    }
    return {median(its_times) / median(our_times), median(its_times), its_first.error, our_first.error};
}

std::string error_text(double error) {
    if (error < 0) return "";
    char text[32];
    std::snprintf(text, sizeof text, "%.*g", error < 1000 ? 3 : 2, error);
    return text;
}

bool is_compared(const Family& family) {
    return !family.is_native && !grid::builtin_of(family, 4).starts_with("convert_");
}

}  // namespace

int main(int count, char** arguments) {
    if (count == 1) return answer_questions(), 0;
    int rounds = 31;
    std::vector<std::string> chosen;
    for (int i = 2; i < count; ++i) {
        std::string word = arguments[i];
        if (word.starts_with("--rounds="))
            rounds = std::stoi(word.substr(9));
        else
            chosen.push_back(word);
    }
    Process its(arguments[0], nullptr), ours(arguments[0], arguments[1]);
    std::printf("| built-in | its time / ours | wide: its time / ours | its error | ours |\n|---|---|---|---|---|\n");
    std::string slower, slower_wide;
    for (const Family& family : grid::families()) {
        bool wanted =
            chosen.empty() ? is_compared(family) : std::find(chosen.begin(), chosen.end(), family.name) != chosen.end();
        if (!wanted || grid::builtin_of(family, 4).empty()) continue;
        int narrow = family.is_single ? 4 : 2, wide = family.is_single ? 16 : 8;
        Comparison one = compare(its, ours, family, narrow, rounds);
        Comparison many = compare(its, ours, family, wide, rounds);
        bool as_good = one.its_error <= std::max(family.bound, one.our_error);
        std::string name = grid::builtin_of(family, narrow) + " of " + grid::vector_name(family.operands[0], narrow);
        std::printf("| %s | %.2f | %.2f | %s | %s |\n", name.c_str(), one.ratio, many.ratio,
                    error_text(one.its_error).c_str(), error_text(one.our_error).c_str());
        std::fflush(stdout);
        if (as_good && one.ratio < 1) slower += (slower.empty() ? "" : ", ") + name;
        if (as_good && many.ratio < 1) slower_wide += (slower_wide.empty() ? "" : ", ") + name;
    }
    std::printf("\nSlower than the run-time's own where its error is within our limit: %s.\n",
                slower.empty() ? "none" : slower.c_str());
    std::printf("Likewise of 16 floats or 8 doubles, where the run-time uses 256-bit units and we do not: %s.\n",
                slower_wide.empty() ? "none" : slower_wide.c_str());
}
