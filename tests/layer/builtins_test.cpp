// Every built-in that the library serves, at every width, called by its own name from a kernel that knows nothing of
// the library: under the layer the results are the shared library's, to the bit.
#include <algorithm>
#include <set>

#include "tests/harness/operands.h"
#include "tests/layer/opencl.h"
#include "tools/builtin_names.h"

namespace {

using grid::Family;

constexpr size_t work_items = 64;

// The buffers of a kernel have a section for each width, one after the other, in lanes for each work item.
constexpr size_t lanes_before(int width) {
    size_t lanes = 0;
    for (int one : grid::widths)
        if (one < width) lanes += static_cast<size_t>(grid::room(one));
    return lanes;
}
constexpr size_t all_lanes = (lanes_before(16) + 16) * work_items;

std::string element(const std::string& buffer, grid::Lane lane, int width, const char* qualifier) {
    return "((global " + std::string(qualifier) + grid::vector_name(lane, width) + "*)(" + buffer + " + " +
           std::to_string(lanes_before(width) * work_items) + "))[i]";
}

// ---- Operands that the run-time's compiler knows. -----------------------------------------------------------------

constexpr int constants_width = 4;
using Tuples = std::vector<harness::Patterns>;

// Those of which the library makes a NaN come first: what a compiler computes has another sign than the processor's.
Tuples telling_tuples(const Family& family) {
    Tuples tuples = harness::operand_tuples(family, 512);
    auto becomes_nan = [&](const harness::Patterns& tuple) {
        std::vector<harness::Patterns> operands;
        for (uint64_t pattern : tuple) operands.push_back({pattern});
        return harness::is_nan(family.results[0], harness::call(family, 1, operands)[0][0]) &&
               !harness::is_nan(family.operands[0], tuple[0]);
    };
    std::stable_partition(tuples.begin(), tuples.end(), becomes_nan);
    tuples.resize(constants_width);
    return tuples;
}

std::string call_of_constants(const Family& family, const Tuples& tuples) {
    std::string call = "*k0 = " + grid::builtin_of(family, constants_width) + "(";
    for (size_t i = 0; i < family.operands.size(); ++i) {
        bool is_wide = grid::size_of(family.operands[i]) == 8;
        call += (i ? ", as_" : "as_") + grid::vector_name(family.operands[i], constants_width) +
                (is_wide ? "((ulong4)(" : "((uint4)(");
        for (size_t lane = 0; lane < constants_width; ++lane)
            call += (lane ? ", " : "") + std::to_string(tuples[lane][i]) + (is_wide ? "ul" : "u");
        call += "))";
    }
    return call + (family.results.size() > 1 ? ", k1)" : ")");
}

// ---- A kernel with all calls of a family. -------------------------------------------------------------------------

std::string kernel_of(const Family& family) {
    std::string parameters, body;
    for (size_t i = 0; i < family.operands.size(); ++i)
        parameters += "global const " + grid::name_of(family.operands[i]) + "* x" + std::to_string(i) + ", ";
    for (size_t i = 0; i < family.results.size(); ++i)
        parameters += (i ? ", global " : "global ") + grid::name_of(family.results[i]) + "* r" + std::to_string(i);
    for (size_t i = 0; i < family.results.size(); ++i)
        parameters += ", global " + grid::vector_name(family.results[i], constants_width) + "* k" + std::to_string(i);
    body += "    if (i == 0) " + call_of_constants(family, telling_tuples(family)) + ";\n";
    for (int width : grid::widths) {
        std::string call = grid::builtin_of(family, width) + "(";
        for (size_t i = 0; i < family.operands.size(); ++i)
            call += (i ? ", " : "") + element("x" + std::to_string(i), family.operands[i], width, "const ");
        std::string line = element("r0", family.results[0], width, "") + " = " + call;
        if (family.results.size() == 1) {
            body += "    " + line + ");\n";
            continue;
        }
        // Second results go to global memory and to the work item's own in turn.
        std::string second = element("r1", family.results[1], width, "");
        if (width == 2 || width == 3 || width == 8)
            body += "    { " + grid::vector_name(family.results[1], width) + " second; " + line + ", &second); " +
                    second + " = second; }\n";
        else
            body += "    " + line + ", &" + second + ");\n";
    }
    return "kernel void call_" + family.name + "(" + parameters + ") {\n    size_t i = get_global_id(0);\n" + body +
           "}\n";
}

// Lanes of a buffer, each in as many bytes as it has.
class Lanes {
  public:
    explicit Lanes(grid::Lane lane) : size_(grid::size_of(lane)), bytes_(all_lanes * size_) {}
    unsigned char* at(size_t index) { return &bytes_[index * size_]; }
    void set(size_t index, uint64_t pattern) { std::memcpy(at(index), &pattern, size_); }
    uint64_t get(size_t index) {
        uint64_t pattern = 0;
        std::memcpy(&pattern, at(index), size_);
        return pattern;
    }
    size_t bytes() const { return bytes_.size(); }

  private:
    size_t size_;
    std::vector<unsigned char> bytes_;
};

void compare(const Family& family, std::vector<Lanes>& operands, std::vector<Lanes>& results) {
    size_t wrong = 0;
    for (int width : grid::widths)
        for (size_t item = 0; item < work_items; ++item) {
            auto room = static_cast<size_t>(grid::room(width));
            size_t first = lanes_before(width) * work_items + item * room;
            std::vector<harness::Patterns> given(operands.size(), harness::Patterns(room));
            for (size_t i = 0; i < operands.size(); ++i)
                for (size_t lane = 0; lane < room; ++lane) given[i][lane] = operands[i].get(first + lane);
            auto expected = harness::call(family, width, given);
            for (size_t i = 0; i < results.size(); ++i)
                for (size_t lane = 0; lane < static_cast<size_t>(width); ++lane)
                    if (uint64_t bits = results[i].get(first + lane); bits != expected[i][lane] && ++wrong <= 3)
                        ADD_FAILURE() << family.export_name(width) << ", lane " << lane << " of "
                                      << testing::PrintToString(given) << ": result " << i << " is " << std::hex << bits
                                      << ", the library's " << expected[i][lane];
        }
    EXPECT_EQ(wrong, 0u) << family.name;
}

void compare_constants(const Family& family, std::vector<Lanes>& results) {
    Tuples tuples = telling_tuples(family);
    std::vector<harness::Patterns> operands(family.operands.size());
    for (size_t i = 0; i < operands.size(); ++i)
        for (const harness::Patterns& tuple : tuples) operands[i].push_back(tuple[i]);
    auto expected = harness::call(family, constants_width, operands);
    for (size_t i = 0; i < results.size(); ++i)
        for (size_t lane = 0; lane < constants_width; ++lane)
            EXPECT_EQ(results[i].get(lane), expected[i][lane])
                << family.name << " of constants " << testing::PrintToString(tuples[lane]) << ", result " << i;
}

class BuiltIns : public testing::TestWithParam<std::string> {};

TEST_P(BuiltIns, AreTheLibrarys) {
    std::vector<Family> families;
    std::string source;
    for (const Family& family : grid::families())
        if (grid::home_of(family) == GetParam() && !grid::builtin_of(family, 1).empty()) {
            families.push_back(family);
            source += kernel_of(family);
        }

    cl_device_id device = opencl::all_devices()[0];
    cl_context context = opencl::create_context({device});
    opencl::Queue queue(context, device);
    cl_program program = opencl::create_program(context, source);
    ASSERT_EQ(clBuildProgram(program, 0, nullptr, "", nullptr, nullptr), CL_SUCCESS)
        << opencl::build_text(program, device, CL_PROGRAM_BUILD_LOG);
    for (const Family& family : families) {
        std::vector<Lanes> operands(family.operands.begin(), family.operands.end());
        std::vector<Lanes> results(family.results.begin(), family.results.end());
        std::vector<Lanes> of_constants = results;
        auto tuples = harness::operand_tuples(family, all_lanes / 2);
        for (size_t i = 0; i < all_lanes; ++i)
            for (size_t j = 0; j < operands.size(); ++j) operands[j].set(i, tuples[i % tuples.size()][j]);

        cl_kernel kernel = opencl::create_kernel(program, "call_" + family.name);
        std::vector<std::unique_ptr<opencl::Buffer>> buffers;
        for (auto* all : {&operands, &results, &of_constants})
            for (Lanes& lanes : *all) {
                buffers.push_back(std::make_unique<opencl::Buffer>(context, lanes.at(0), lanes.bytes()));
                buffers.back()->pass_to(kernel, static_cast<cl_uint>(buffers.size() - 1));
            }
        queue.run(kernel, work_items);
        for (const auto& buffer : buffers) buffer->read(queue.get());
        clReleaseKernel(kernel);
        compare(family, operands, results);
        compare_constants(family, of_constants);
    }
    clReleaseProgram(program);
    clReleaseContext(context);
}

std::set<std::string> homes() {
    std::set<std::string> homes;
    for (const Family& family : grid::families()) homes.insert(grid::home_of(family));
    return homes;
}
INSTANTIATE_TEST_SUITE_P(Grid, BuiltIns, testing::ValuesIn(homes()), [](const auto& info) { return info.param; });

}  // namespace
