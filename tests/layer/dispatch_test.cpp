// The layer as a loader gets it, over a run-time that is pretended: this one takes intermediate language.
#define CL_TARGET_OPENCL_VERSION 300
#include <CL/cl_layer.h>
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace {

std::vector<std::string> calls;  // that reached the run-time
char something;

template <class Handle>
Handle handle() {
    return reinterpret_cast<Handle>(&something);
}

cl_program CL_API_CALL create_with_il(cl_context, const void*, size_t, cl_int*) {
    calls.push_back("create");
    return handle<cl_program>();
}
cl_int CL_API_CALL build(cl_program, cl_uint, const cl_device_id*, const char* options,
                         void(CL_CALLBACK*)(cl_program, void*), void*) {
    calls.push_back(std::string("build ") + options);
    return CL_SUCCESS;
}
cl_int CL_API_CALL compile(cl_program, cl_uint, const cl_device_id*, const char* options, cl_uint, const cl_program*,
                           const char**, void(CL_CALLBACK*)(cl_program, void*), void*) {
    calls.push_back(std::string("compile ") + options);
    return CL_SUCCESS;
}
cl_int CL_API_CALL program_info(cl_program, cl_program_info what, size_t, void*, size_t*) {
    calls.push_back("info " + std::to_string(what));
    return CL_SUCCESS;
}
cl_kernel CL_API_CALL create_kernel(cl_program, const char* name, cl_int*) {
    calls.push_back(std::string("kernel ") + name);
    return handle<cl_kernel>();
}
cl_int CL_API_CALL release_kernel(cl_kernel) { return calls.push_back("release kernel"), CL_SUCCESS; }
cl_int CL_API_CALL release_program(cl_program) { return calls.push_back("release program"), CL_SUCCESS; }

constexpr size_t entries = sizeof(cl_icd_dispatch) / sizeof(void*);

class Dispatch : public testing::Test {
  protected:
    cl_icd_dispatch run_time = {};
    const cl_icd_dispatch* layer = nullptr;
    cl_uint count = 0;

    void SetUp() override {
        calls.clear();
        // No two functions are the same; those that are not called need not be any.
        for (size_t i = 0; i < entries; ++i) {
            uintptr_t place = 16 * (i + 1);
            std::memcpy(reinterpret_cast<char*>(&run_time) + i * sizeof place, &place, sizeof place);
        }
        run_time.clCreateProgramWithIL = create_with_il;
        run_time.clBuildProgram = build;
        run_time.clCompileProgram = compile;
        run_time.clGetProgramInfo = program_info;
        run_time.clCreateKernel = create_kernel;
        run_time.clReleaseKernel = release_kernel;
        run_time.clReleaseProgram = release_program;
    }
    cl_int init(cl_uint known) {
        void* file = dlopen(LAYER_FILE, RTLD_NOW | RTLD_LOCAL);
        EXPECT_NE(file, nullptr) << dlerror();
        return reinterpret_cast<pfn_clInitLayer>(dlsym(file, "clInitLayer"))(known, &run_time, &count, &layer);
    }
};

TEST_F(Dispatch, LetsAProgramOfIntermediateLanguageThrough) {
    ASSERT_EQ(init(entries), CL_SUCCESS);
    cl_program program = layer->clCreateProgramWithIL(handle<cl_context>(), "il", 2, nullptr);
    EXPECT_EQ(layer->clCompileProgram(program, 0, nullptr, "-a", 0, nullptr, nullptr, nullptr, nullptr), CL_SUCCESS);
    EXPECT_EQ(layer->clBuildProgram(program, 0, nullptr, "-b", nullptr, nullptr), CL_SUCCESS);
    EXPECT_EQ(layer->clGetProgramInfo(program, CL_PROGRAM_SOURCE, 0, nullptr, nullptr), CL_SUCCESS);
    cl_kernel kernel = layer->clCreateKernel(program, "k", nullptr);
    EXPECT_EQ(kernel, handle<cl_kernel>());
    layer->clReleaseKernel(kernel);
    layer->clReleaseProgram(program);
    EXPECT_EQ(calls,
              (std::vector<std::string>{"create", "compile -a", "build -b", "info " + std::to_string(CL_PROGRAM_SOURCE),
                                        "kernel k", "release kernel", "release program"}));
}

// Of programs and kernels the layer makes its own business, of nothing else.
TEST_F(Dispatch, HandsOnTheRunTimesOwnFunctions) {
    ASSERT_EQ(init(entries), CL_SUCCESS);
    EXPECT_EQ(count, entries);
    EXPECT_EQ(layer->clCreateProgramWithBinary, run_time.clCreateProgramWithBinary);
    EXPECT_EQ(layer->clCreateProgramWithBuiltInKernels, run_time.clCreateProgramWithBuiltInKernels);
    EXPECT_EQ(layer->clSetKernelArg, run_time.clSetKernelArg);
    EXPECT_EQ(layer->clSetProgramSpecializationConstant, run_time.clSetProgramSpecializationConstant);
    size_t others = 0;
    for (size_t i = 0; i < entries; ++i)
        others += std::memcmp(reinterpret_cast<const char*>(layer) + i * sizeof(void*),
                              reinterpret_cast<const char*>(&run_time) + i * sizeof(void*), sizeof(void*)) != 0;
    EXPECT_EQ(others, 14u);
}

TEST_F(Dispatch, ServesNoLoaderThatDoesNotKnowTheLinker) {
    EXPECT_EQ(init(offsetof(cl_icd_dispatch, clLinkProgram) / sizeof(void*)), CL_INVALID_VALUE);
    ASSERT_EQ(init(offsetof(cl_icd_dispatch, clCloneKernel) / sizeof(void*)), CL_SUCCESS);  // one of OpenCL 2.0
    EXPECT_EQ(count, offsetof(cl_icd_dispatch, clCloneKernel) / sizeof(void*));
    EXPECT_EQ(layer->clCloneKernel, nullptr);
}

}  // namespace
