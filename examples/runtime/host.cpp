// An OpenCL application like any other: it knows nothing of this library. Run as it is, its kernel calls the run-time's
// own built-ins; run with OPENCL_LAYERS=libocl_zorv_v8_layer.so, the library's.
#define CL_TARGET_OPENCL_VERSION 120
#include <CL/cl.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

const char* const source = R"(
    kernel void functions(global const float4* x, global float4* y) {
        size_t i = get_global_id(0), n = get_global_size(0);
        y[i] = sin(x[i]);
        y[i + n] = exp(x[i] * 0.001f);
        y[i + 2 * n] = rsqrt(x[i]);
        y[i + 3 * n] = tgamma(x[i] * 0.003f);
        y[i + 4 * n] = pow(x[i], 0.7f);
    }
)";

void check(cl_int error, const char* what) {
    if (error == CL_SUCCESS) return;
    std::printf("%s: error %d\n", what, error);
    std::exit(1);
}

// In units of the last place of the exact result.
double distance(float result, double exact) {
    return std::fabs(result - exact) / std::ldexp(1.0, std::ilogb(exact) - 23);
}

}  // namespace

int main() {
    cl_platform_id platform;
    cl_device_id device;
    check(clGetPlatformIDs(1, &platform, nullptr), "no OpenCL run-time");
    check(clGetDeviceIDs(platform, CL_DEVICE_TYPE_ALL, 1, &device, nullptr), "no device");
    cl_int error;
    cl_context context = clCreateContext(nullptr, 1, &device, nullptr, nullptr, &error);
    check(error, "clCreateContext");
    cl_command_queue queue = clCreateCommandQueue(context, device, 0, &error);
    check(error, "clCreateCommandQueue");
    cl_program program = clCreateProgramWithSource(context, 1, const_cast<const char**>(&source), nullptr, &error);
    check(error, "clCreateProgramWithSource");
    check(clBuildProgram(program, 1, &device, "", nullptr, nullptr), "clBuildProgram");
    cl_kernel kernel = clCreateKernel(program, "functions", &error);
    check(error, "clCreateKernel");

    struct Function {
        const char* name;
        double (*exact)(float);
    };
    const Function functions[] = {
        {"sin(x)", [](float x) { return std::sin(static_cast<double>(x)); }},
        {"exp(0.001 x)", [](float x) { return std::exp(static_cast<double>(x * 0.001f)); }},
        {"rsqrt(x)", [](float x) { return 1 / std::sqrt(static_cast<double>(x)); }},
        {"tgamma(0.003 x)", [](float x) { return std::tgamma(static_cast<double>(x * 0.003f)); }},
        {"pow(x, 0.7)", [](float x) { return std::pow(static_cast<double>(x), static_cast<double>(0.7f)); }}};
    constexpr size_t count = 1 << 16, function_count = sizeof functions / sizeof *functions;
    std::vector<float> x(count), y(count * function_count);
    for (size_t i = 0; i < count; ++i) x[i] = 1 + static_cast<float>(i) * 0.1f;
    cl_mem in =
        clCreateBuffer(context, CL_MEM_READ_ONLY | CL_MEM_COPY_HOST_PTR, x.size() * sizeof(float), x.data(), &error);
    check(error, "clCreateBuffer");
    cl_mem out = clCreateBuffer(context, CL_MEM_WRITE_ONLY, y.size() * sizeof(float), nullptr, &error);
    check(error, "clCreateBuffer");
    clSetKernelArg(kernel, 0, sizeof in, &in);
    clSetKernelArg(kernel, 1, sizeof out, &out);
    size_t work_items = count / 4;
    check(clEnqueueNDRangeKernel(queue, kernel, 1, nullptr, &work_items, nullptr, 0, nullptr, nullptr), "the kernel");
    check(clEnqueueReadBuffer(queue, out, CL_TRUE, 0, y.size() * sizeof(float), y.data(), 0, nullptr, nullptr),
          "clEnqueueReadBuffer");

    for (size_t f = 0; f < function_count; ++f) {
        double worst = 0;
        for (size_t i = 0; i < count; ++i) {
            double exact = functions[f].exact(x[i]);
            if (std::fabs(exact) < 0x1p127) worst = std::fmax(worst, distance(y[f * count + i], exact));
        }
        std::printf("  %-16s largest error %8.3f ulp\n", functions[f].name, worst);
    }
}
