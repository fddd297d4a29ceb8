// What an application may ask of its programs and kernels, as it asks without the layer. Two devices are there.
#include <cmath>
#include <thread>

#include "tests/harness/lanes.h"
#include "tests/layer/opencl.h"

namespace {

constexpr size_t work_items = 256;
const std::string wave = "kernel void wave(global float4* x) {\n"
                         "    size_t i = get_global_id(0);\n"
                         "    x[i] = sin(x[i]);\n"
                         "}\n";

// The kernel takes sines; are they the library's, every bit of them?
bool takes_the_librarys_sines(cl_context context, cl_device_id device, cl_kernel kernel) {
    std::vector<float> x(work_items * 4);
    for (size_t i = 0; i < x.size(); ++i)
        x[i] = std::ldexp(1.0f + static_cast<float>(i) / 512, static_cast<int>(i % 10) - 3);
    std::vector<float> given = x;
    opencl::Buffer buffer(context, x.data(), x.size() * sizeof(float));
    opencl::Queue queue(context, device);
    buffer.pass_to(kernel, 0);
    queue.run(kernel, work_items);
    buffer.read(queue.get());
    bool same = true;
    for (size_t i = 0; i < x.size(); ++i) {
        EXPECT_NEAR(x[i], std::sin(static_cast<double>(given[i])), 1e-6);
        same = same && harness::pattern(x[i]) ==
                           harness::call_uniform(harness::family("sinf"), 4, {harness::pattern(given[i])})[0];
    }
    return same;
}

class Application : public testing::Test {
  protected:
    std::vector<cl_device_id> devices = opencl::all_devices();
    cl_context context = opencl::create_context(devices);

    bool is_served(cl_program program, cl_device_id device, const std::string& name = "wave") {
        cl_kernel kernel = opencl::create_kernel(program, name);
        bool served = takes_the_librarys_sines(context, device, kernel);
        clReleaseKernel(kernel);
        return served;
    }
    template <class Value>
    Value info(cl_program program, cl_program_info what) {
        Value value = {};
        EXPECT_EQ(clGetProgramInfo(program, what, sizeof value, &value, nullptr), CL_SUCCESS);
        return value;
    }
    std::string text(cl_program program, cl_program_info what) {
        size_t size = 0;
        EXPECT_EQ(clGetProgramInfo(program, what, 0, nullptr, &size), CL_SUCCESS);
        std::string text(size, '\0');
        EXPECT_EQ(clGetProgramInfo(program, what, size, text.data(), nullptr), CL_SUCCESS);
        return text.substr(0, text.find('\0'));
    }
    // The whole context goes: a reference that the layer kept would show.
    void TearDown() override {
        bool gone = false;
        EXPECT_EQ(clSetContextDestructorCallback(
                      context, [](cl_context, void* data) { *static_cast<bool*>(data) = true; }, &gone),
                  CL_SUCCESS);
        EXPECT_EQ(clReleaseContext(context), CL_SUCCESS);
        EXPECT_TRUE(gone);
    }
};

TEST_F(Application, SeesItsOwnSourceAndOptions) {
    const char* strings[] = {"kernel void k(global int* x) {", "*x = SCALE; }  // and more", "\n"};
    const size_t lengths[] = {0, 13, 0};
    cl_int error = CL_SUCCESS;
    cl_program program = clCreateProgramWithSource(context, 3, strings, lengths, &error);
    ASSERT_EQ(error, CL_SUCCESS);
    EXPECT_EQ(text(program, CL_PROGRAM_SOURCE), "kernel void k(global int* x) {*x = SCALE; }\n");
    const char* options = "-DSCALE=7 -cl-fast-relaxed-math -cl-kernel-arg-info";
    ASSERT_EQ(clBuildProgram(program, 0, nullptr, options, nullptr, nullptr), CL_SUCCESS);
    EXPECT_EQ(text(program, CL_PROGRAM_SOURCE), "kernel void k(global int* x) {*x = SCALE; }\n");
    EXPECT_EQ(opencl::build_text(program, devices[1], CL_PROGRAM_BUILD_OPTIONS), options);

    cl_kernel kernel = opencl::create_kernel(program, "k");
    char name[8] = "";
    EXPECT_EQ(clGetKernelArgInfo(kernel, 0, CL_KERNEL_ARG_NAME, sizeof name, name, nullptr), CL_SUCCESS);
    EXPECT_STREQ(name, "x");
    int result = 0;
    {
        opencl::Buffer buffer(context, &result, sizeof result);
        opencl::Queue queue(context, devices[0]);
        buffer.pass_to(kernel, 0);
        queue.run(kernel, 1);
        buffer.read(queue.get());
    }
    EXPECT_EQ(result, 7);
    clReleaseKernel(kernel);
    clReleaseProgram(program);
}

TEST_F(Application, IsToldOfItsErrors) {
    cl_program program = opencl::create_program(context, "kernel void k(global float* x) {\n\n    *x = missing;\n}\n");
    EXPECT_EQ(clBuildProgram(program, 0, nullptr, "-DA", nullptr, nullptr), CL_BUILD_PROGRAM_FAILURE);
    cl_build_status status = CL_BUILD_NONE;
    clGetProgramBuildInfo(program, devices[0], CL_PROGRAM_BUILD_STATUS, sizeof status, &status, nullptr);
    EXPECT_EQ(status, CL_BUILD_ERROR);
    std::string log = opencl::build_text(program, devices[0], CL_PROGRAM_BUILD_LOG);
    EXPECT_NE(log.find("'missing'"), std::string::npos) << log;
    EXPECT_NE(log.find(":3:"), std::string::npos) << "the line in the application's own source: " << log;
    cl_int error = CL_SUCCESS;
    EXPECT_EQ(clCreateKernel(program, "k", &error), nullptr);
    EXPECT_EQ(error, CL_INVALID_PROGRAM_EXECUTABLE);

    EXPECT_EQ(clBuildProgram(program, 0, nullptr, "-nonsense", nullptr, nullptr), CL_INVALID_BUILD_OPTIONS);
    EXPECT_EQ(clBuildProgram(program, 1, nullptr, "", nullptr, nullptr), CL_INVALID_VALUE);
    EXPECT_EQ(clBuildProgram(program, 0, nullptr, "", nullptr, &error), CL_INVALID_VALUE);
    EXPECT_EQ(clCompileProgram(program, 0, nullptr, "", 0, nullptr, nullptr, nullptr, nullptr),
              CL_COMPILE_PROGRAM_FAILURE);
    clReleaseProgram(program);
}

TEST_F(Application, HasALogWithoutTheLayersWarnings) {
    cl_program program = opencl::create_program(context, wave);
    ASSERT_EQ(clBuildProgram(program, 0, nullptr, "-Werror", nullptr, nullptr), CL_SUCCESS);
    EXPECT_EQ(opencl::build_text(program, devices[0], CL_PROGRAM_BUILD_LOG), "");
    EXPECT_TRUE(is_served(program, devices[0]));
    clReleaseProgram(program);
}

TEST_F(Application, KeepsAProgramByItsKernels) {
    cl_program program =
        opencl::create_program(context, wave + "kernel void other(global float* x) { *x = exp(*x); }\n");
    ASSERT_EQ(clBuildProgram(program, 0, nullptr, nullptr, nullptr, nullptr), CL_SUCCESS);
    EXPECT_EQ(info<size_t>(program, CL_PROGRAM_NUM_KERNELS), 2u);
    EXPECT_EQ(text(program, CL_PROGRAM_KERNEL_NAMES), "wave;other");
    cl_kernel kernels[2] = {};
    cl_uint count = 0;
    ASSERT_EQ(clCreateKernelsInProgram(program, 2, kernels, &count), CL_SUCCESS);
    EXPECT_EQ(count, 2u);
    EXPECT_EQ(info<cl_uint>(program, CL_PROGRAM_REFERENCE_COUNT), 3u);
    EXPECT_EQ(clBuildProgram(program, 0, nullptr, nullptr, nullptr, nullptr), CL_INVALID_OPERATION);
    EXPECT_EQ(clRetainKernel(kernels[0]), CL_SUCCESS);
    EXPECT_EQ(clReleaseKernel(kernels[0]), CL_SUCCESS);
    EXPECT_EQ(clReleaseKernel(kernels[1]), CL_SUCCESS);

    EXPECT_EQ(clRetainProgram(program), CL_SUCCESS);
    EXPECT_EQ(clReleaseProgram(program), CL_SUCCESS);
    EXPECT_EQ(clReleaseProgram(program), CL_SUCCESS);
    cl_program found = nullptr;
    EXPECT_EQ(clGetKernelInfo(kernels[0], CL_KERNEL_PROGRAM, sizeof found, &found, nullptr), CL_SUCCESS);
    EXPECT_EQ(found, program);
    EXPECT_EQ(info<cl_uint>(program, CL_PROGRAM_REFERENCE_COUNT), 1u);
    EXPECT_NE(text(program, CL_PROGRAM_SOURCE).find("kernel void wave"), std::string::npos);
    cl_int error = CL_SUCCESS;
    cl_kernel clone = clCloneKernel(kernels[0], &error);
    EXPECT_EQ(clReleaseKernel(kernels[0]), CL_SUCCESS);
    if (error == CL_SUCCESS) {
        EXPECT_TRUE(takes_the_librarys_sines(context, devices[0], clone));
        EXPECT_EQ(clReleaseKernel(clone), CL_SUCCESS);
    }
}

TEST_F(Application, BuildsAnewForOneDeviceAfterTheOther) {
    cl_program program = opencl::create_program(context, wave);
    for (size_t i = 0; i < devices.size(); ++i) {
        ASSERT_EQ(clBuildProgram(program, 1, &devices[i], "-DFIRST", nullptr, nullptr), CL_SUCCESS);
        EXPECT_TRUE(is_served(program, devices[i]));
    }
    EXPECT_TRUE(is_served(program, devices[0])) << "the first device's executable stays";
    ASSERT_EQ(clBuildProgram(program, 1, &devices[1], "-DSECOND", nullptr, nullptr), CL_SUCCESS);
    EXPECT_TRUE(is_served(program, devices[1]));
    EXPECT_EQ(info<cl_uint>(program, CL_PROGRAM_NUM_DEVICES), 2u);
    auto sizes = info<std::array<size_t, 2>>(program, CL_PROGRAM_BINARY_SIZES);
    EXPECT_EQ(sizes[0], 0u);
    EXPECT_GT(sizes[1], 0u);
    clReleaseProgram(program);
}

TEST_F(Application, StoresBinariesAndLoadsThem) {
    cl_program program = opencl::create_program(context, wave);
    ASSERT_EQ(clBuildProgram(program, 0, nullptr, "", nullptr, nullptr), CL_SUCCESS);
    auto sizes = info<std::array<size_t, 2>>(program, CL_PROGRAM_BINARY_SIZES);
    std::vector<unsigned char> first(sizes[0]), second(sizes[1]);
    unsigned char* places[] = {first.data(), second.data()};
    ASSERT_EQ(clGetProgramInfo(program, CL_PROGRAM_BINARIES, sizeof places, places, nullptr), CL_SUCCESS);
    clReleaseProgram(program);

    const unsigned char* binaries[] = {first.data(), second.data()};
    cl_int error = CL_SUCCESS;
    program = clCreateProgramWithBinary(context, 2, devices.data(), sizes.data(), binaries, nullptr, &error);
    ASSERT_EQ(error, CL_SUCCESS);
    ASSERT_EQ(clBuildProgram(program, 0, nullptr, "", nullptr, nullptr), CL_SUCCESS);
    for (cl_device_id device : devices) EXPECT_TRUE(is_served(program, device));
    clReleaseProgram(program);
}

TEST_F(Application, CompilesAndLinksByItself) {
    cl_program header = opencl::create_program(context, "float4 turned(float4 x);\n");
    cl_program function =
        opencl::create_program(context, "#include \"turned.h\"\nfloat4 turned(float4 x) { return sin(x); }\n");
    cl_program kernel =
        opencl::create_program(context, "#include \"turned.h\"\nkernel void wave(global float4* x) {\n"
                                        "    size_t i = get_global_id(0);\n    x[i] = turned(x[i]);\n}\n");
    const char* name = "turned.h";
    int notified = 0;
    auto notify = [](cl_program, void* data) { ++*static_cast<int*>(data); };
    for (cl_program program : {function, kernel}) {
        ASSERT_EQ(clCompileProgram(program, 0, nullptr, "-DX", 1, &header, &name, notify, &notified), CL_SUCCESS);
        EXPECT_EQ(opencl::build_text(program, devices[0], CL_PROGRAM_BUILD_OPTIONS), "-DX");
    }
    cl_int error = CL_SUCCESS;
    cl_program library = clLinkProgram(context, 0, nullptr, "-create-library", 1, &function, notify, &notified, &error);
    ASSERT_EQ(error, CL_SUCCESS);
    for (cl_program other : {function, library}) {
        cl_program inputs[] = {kernel, other};
        cl_program program = clLinkProgram(context, 0, nullptr, "", 2, inputs, notify, &notified, &error);
        ASSERT_EQ(error, CL_SUCCESS);
        EXPECT_TRUE(is_served(program, devices[0]));
        clReleaseProgram(program);
    }
    EXPECT_EQ(notified, 5);
    for (cl_program program : {header, function, kernel, library}) clReleaseProgram(program);
}

TEST_F(Application, IsNotifiedOfItsOwnProgram) {
    for (const std::string& source : {wave, std::string("nonsense")}) {
        cl_program program = opencl::create_program(context, source), notified = nullptr;
        clBuildProgram(
            program, 0, nullptr, "", [](cl_program built, void* data) { *static_cast<cl_program*>(data) = built; },
            &notified);
        EXPECT_EQ(notified, program);
        clReleaseProgram(program);
    }
}

TEST_F(Application, SpeaksNewerLanguagesToo) {
    for (const char* options : {"-cl-std=CL1.1", "-cl-std=CL1.2", "-cl-std=CL2.0", "-cl-std=CL3.0"}) {
        cl_program program = opencl::create_program(context, wave);
        ASSERT_EQ(clBuildProgram(program, 0, nullptr, options, nullptr, nullptr), CL_SUCCESS) << options;
        bool is_old = std::string(options) == "-cl-std=CL1.1";  // the built-ins' header begins at 1.2
        EXPECT_EQ(is_served(program, devices[0]), !is_old) << options;
        clReleaseProgram(program);
    }
}

TEST_F(Application, MayDefineAFunctionOfABuiltInsName) {
    cl_program program = opencl::create_program(
        context, "float4 __attribute__((overloadable)) sin(float4 x) { return x + 1; }\n" + wave);
    ASSERT_EQ(clBuildProgram(program, 0, nullptr, "", nullptr, nullptr), CL_SUCCESS);
    cl_kernel kernel = opencl::create_kernel(program, "wave");
    float x[4] = {1, 2, 3, 4};
    {
        opencl::Buffer buffer(context, x, sizeof x);
        opencl::Queue queue(context, devices[0]);
        buffer.pass_to(kernel, 0);
        queue.run(kernel, 1);
        buffer.read(queue.get());
    }
    EXPECT_EQ(x[3], 5);
    clReleaseKernel(kernel);
    clReleaseProgram(program);
}

TEST_F(Application, BuildsInManyThreads) {
    std::vector<std::thread> threads;
    std::vector<int> served(4);
    for (size_t i = 0; i < served.size(); ++i)
        threads.emplace_back([&, i] {
            // Every other one has a context of its own.
            cl_device_id device = devices[i % 2];
            cl_context own = i < 2 ? opencl::create_context({device}) : context;
            for (int round = 0; round < 3; ++round) {
                cl_program program =
                    opencl::create_program(own, wave + "// " + std::to_string(i * 8 + static_cast<size_t>(round)));
                opencl::check(clBuildProgram(program, 1, &device, "", nullptr, nullptr), "clBuildProgram");
                cl_kernel kernel = opencl::create_kernel(program, "wave");
                clReleaseProgram(program);
                served[i] += takes_the_librarys_sines(own, device, kernel);
                clReleaseKernel(kernel);
            }
            if (own != context) clReleaseContext(own);
        });
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(served, std::vector<int>(4, 3));
}

}  // namespace
