// OpenCL in few words, for programs that know nothing of a layer. A failure of the run-time ends the test.
#pragma once

#define CL_TARGET_OPENCL_VERSION 300
#include <CL/cl.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace opencl {

inline void check(cl_int error, const char* what) {
    if (error == CL_SUCCESS) return;
    std::fprintf(stderr, "%s: error %d\n", what, error);
    std::exit(1);
}

inline std::vector<cl_device_id> all_devices() {
    cl_platform_id platform = nullptr;
    check(clGetPlatformIDs(1, &platform, nullptr), "clGetPlatformIDs");
    cl_uint count = 0;
    check(clGetDeviceIDs(platform, CL_DEVICE_TYPE_CPU, 0, nullptr, &count), "clGetDeviceIDs");
    std::vector<cl_device_id> devices(count);
    check(clGetDeviceIDs(platform, CL_DEVICE_TYPE_CPU, count, devices.data(), nullptr), "clGetDeviceIDs");
    return devices;
}

inline cl_context create_context(const std::vector<cl_device_id>& devices) {
    cl_int error = CL_SUCCESS;
    cl_context context =
        clCreateContext(nullptr, static_cast<cl_uint>(devices.size()), devices.data(), nullptr, nullptr, &error);
    check(error, "clCreateContext");
    return context;
}

inline cl_program create_program(cl_context context, const std::string& source) {
    const char* text = source.c_str();
    cl_int error = CL_SUCCESS;
    cl_program program = clCreateProgramWithSource(context, 1, &text, nullptr, &error);
    check(error, "clCreateProgramWithSource");
    return program;
}

inline std::string build_text(cl_program program, cl_device_id device, cl_program_build_info info) {
    size_t size = 0;
    check(clGetProgramBuildInfo(program, device, info, 0, nullptr, &size), "clGetProgramBuildInfo");
    std::string text(size, '\0');
    check(clGetProgramBuildInfo(program, device, info, size, text.data(), nullptr), "clGetProgramBuildInfo");
    return text.substr(0, text.find('\0'));
}

inline cl_kernel create_kernel(cl_program program, const std::string& name) {
    cl_int error = CL_SUCCESS;
    cl_kernel kernel = clCreateKernel(program, name.c_str(), &error);
    check(error, "clCreateKernel");
    return kernel;
}

// A buffer that starts as these bytes, and gives them back.
class Buffer {
  public:
    Buffer(cl_context context, void* bytes, size_t size) : bytes_(bytes), size_(size) {
        cl_int error = CL_SUCCESS;
        memory_ = clCreateBuffer(context, CL_MEM_READ_WRITE | CL_MEM_COPY_HOST_PTR, size, bytes, &error);
        check(error, "clCreateBuffer");
    }
    Buffer(const Buffer&) = delete;
    Buffer& operator=(const Buffer&) = delete;
    ~Buffer() { clReleaseMemObject(memory_); }

    void pass_to(cl_kernel kernel, cl_uint index) const {
        check(clSetKernelArg(kernel, index, sizeof memory_, &memory_), "clSetKernelArg");
    }
    void read(cl_command_queue queue) const {
        check(clEnqueueReadBuffer(queue, memory_, CL_TRUE, 0, size_, bytes_, 0, nullptr, nullptr),
              "clEnqueueReadBuffer");
    }

  private:
    cl_mem memory_ = nullptr;
    void* bytes_;
    size_t size_;
};

// The command queue of one device.
class Queue {
  public:
    Queue(cl_context context, cl_device_id device) {
        cl_int error = CL_SUCCESS;
        queue_ = clCreateCommandQueueWithProperties(context, device, nullptr, &error);
        check(error, "clCreateCommandQueueWithProperties");
    }
    Queue(const Queue&) = delete;
    Queue& operator=(const Queue&) = delete;
    ~Queue() { clReleaseCommandQueue(queue_); }

    void run(cl_kernel kernel, size_t work_items) const {
        check(clEnqueueNDRangeKernel(queue_, kernel, 1, nullptr, &work_items, nullptr, 0, nullptr, nullptr),
              "clEnqueueNDRangeKernel");
        check(clFinish(queue_), "clFinish");
    }
    cl_command_queue get() const { return queue_; }

  private:
    cl_command_queue queue_ = nullptr;
};

}  // namespace opencl
