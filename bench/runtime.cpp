// The built-ins of an OpenCL run-time beside the library's, called from kernels without the layer and with it: time
// and error, as a table in Markdown.
//
//   runtime <layer> [--rounds=N] [family...]
//
// Two processes of this program hold the kernels, one of them under the layer, and are asked in turns: what else the
// machine does meets both alike. Without families, all accurate ones that are no conversions.
#include <algorithm>
#include <chrono>
#include <cstring>
#include <deque>
#include <memory>

#include "bench/asking.h"
#include "bench/operands.h"
#include "tests/layer/opencl.h"
#include "tools/builtin_names.h"
#include "tools/reference.h"

namespace {

using grid::Family;

// ---- The process that is asked: a family and a width, answered by the time of a lane and the largest error. -------

constexpr size_t copies = 64;  // of a benchmark's operands, in one buffer
constexpr size_t lanes = bench::elements * copies;

// Which pages a buffer lies in is luck that the caches show, for as long as it lives: it is measured in several.
constexpr size_t places = 8;

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
        for (Buffers& buffers : places_) {
            for (size_t i = 0; i < family.operands.size(); ++i)
                buffers.push_back(buffer(context, workload_.arrays().operands[i], grid::size_of(family.operands[i])));
            for (grid::Lane lane : family.results) buffers.push_back(buffer(context, nullptr, grid::size_of(lane)));
        }
    }

    // Measured in the next place, when the caches have seen it.
    double seconds_of_a_lane(const opencl::Queue& queue) {
        const Buffers& buffers = places_[next_++ % places];
        for (size_t i = 0; i < buffers.size(); ++i) buffers[i]->pass_to(kernel_, static_cast<cl_uint>(i));
        size_t work_items = lanes / static_cast<size_t>(width_);
        queue.run(kernel_, work_items);
        constexpr int runs = 4;
        auto begin = std::chrono::steady_clock::now();
        for (int run = 0; run < runs; ++run) queue.run(kernel_, work_items);
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count() / (lanes * runs);
    }
    // After a measurement.
    double error(const opencl::Queue& queue) {
        places_[0][family_.operands.size()]->read(queue.get());
        return largest_error(family_, workload_.arrays(), bytes_[family_.operands.size()].data());
    }

  private:
    using Buffers = std::vector<std::unique_ptr<opencl::Buffer>>;

    const Family& family_;
    int width_;
    bench::Workload workload_;
    cl_kernel kernel_;
    std::deque<std::vector<char>> bytes_;
    Buffers places_[places];
    size_t next_ = 0;

    std::unique_ptr<opencl::Buffer> buffer(cl_context context, const void* operands, size_t lane_size) {
        std::vector<char>& bytes = bytes_.emplace_back(lanes * lane_size);
        for (size_t i = 0; i < copies && operands != nullptr; ++i)
            std::memcpy(&bytes[i * bench::elements * lane_size], operands, bench::elements * lane_size);
        return std::make_unique<opencl::Buffer>(context, bytes.data(), bytes.size());
    }
};

void answer() {
    cl_device_id device = opencl::all_devices()[0];
    cl_context context = opencl::create_context({device});
    opencl::Queue queue(context, device);
    bench::answer_questions([&](const Family& family, int width) -> bench::Measure {
        auto kernel = std::make_shared<Kernel>(context, family, width);
        kernel->seconds_of_a_lane(queue);
        double error = kernel->error(queue);
        return [=, &queue] { return bench::Answer{.seconds = kernel->seconds_of_a_lane(queue), .error = error}; };
    });
}

// ---- The process that asks. ----------------------------------------------------------------------------------------

struct Comparison {
    double ratio, its_time, its_error, our_error;
};

Comparison compare(bench::Process& its, bench::Process& ours, const Family& family, int width, int rounds) {
    std::vector<bench::Answer> answers = bench::ask_in_turns({&its, &ours}, family.name, width, rounds);
    return {answers[0].seconds / answers[1].seconds, answers[0].seconds, answers[0].error, answers[1].error};
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
    if (count == 1) return answer(), 0;
    int rounds = 31;
    std::vector<std::string> chosen;
    for (int i = 2; i < count; ++i) {
        std::string word = arguments[i];
        if (word.starts_with("--rounds="))
            rounds = std::stoi(word.substr(9));
        else
            chosen.push_back(word);
    }
    const std::pair<std::string, std::string> one_thread = {"POCL_DEVICES", "basic"};
    bench::Process its({arguments[0]}, {one_thread});
    bench::Process ours({arguments[0]}, {one_thread, {"OPENCL_LAYERS", arguments[1]}});
    std::printf("| built-in | its time / ours | wide: its time / ours | scalar: its time / ours | its error | ours |\n"
                "|---|--:|--:|--:|--:|--:|\n");
    std::string slower, slower_wide, slower_scalar;
    for (const Family& family : grid::families()) {
        bool wanted =
            chosen.empty() ? is_compared(family) : std::find(chosen.begin(), chosen.end(), family.name) != chosen.end();
        if (!wanted || grid::builtin_of(family, 4).empty()) continue;
        int narrow = family.is_single ? 4 : 2, wide = family.is_single ? 16 : 8;
        Comparison one = compare(its, ours, family, narrow, rounds);
        Comparison many = compare(its, ours, family, wide, rounds);
        Comparison scalar = compare(its, ours, family, 1, rounds);
        bool as_good = one.its_error <= std::max(family.bound, one.our_error);
        auto name_at = [&](int width) {
            return grid::builtin_of(family, width) + " of " + grid::vector_name(family.operands[0], width);
        };
        std::string name = name_at(narrow);
        std::printf("| %s | %.2f | %.2f | %.2f | %s | %s |\n", name.c_str(), one.ratio, many.ratio, scalar.ratio,
                    error_text(one.its_error).c_str(), error_text(one.our_error).c_str());
        std::fflush(stdout);
        if (as_good && one.ratio < 1) slower += (slower.empty() ? "" : ", ") + name;
        if (as_good && many.ratio < 1) slower_wide += (slower_wide.empty() ? "" : ", ") + name;
        if (as_good && scalar.ratio < 1) slower_scalar += (slower_scalar.empty() ? "" : ", ") + name_at(1);
    }
    auto list = [](const char* what, const std::string& names) {
        std::printf("\n%s: %s.\n", what, names.empty() ? "none" : names.c_str());
    };
    list("Slower than the run-time's own where its error is within our bound", slower);
    list("Likewise of 16 floats or 8 doubles, where the run-time uses 256-bit units and we do not", slower_wide);
    list("Likewise of scalars, where the run-time vectorises the loop and we do not", slower_scalar);
}
