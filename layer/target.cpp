#include "layer/target.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace layer {

cl_icd_dispatch target;

std::vector<cl_device_id> devices_of(cl_context context) {
    size_t size = 0;
    if (target.clGetContextInfo(context, CL_CONTEXT_DEVICES, 0, nullptr, &size) != CL_SUCCESS) return {};
    std::vector<cl_device_id> devices(size / sizeof(cl_device_id));
    target.clGetContextInfo(context, CL_CONTEXT_DEVICES, size, devices.data(), nullptr);
    return devices;
}

std::vector<cl_device_id> devices_of(cl_program program) {
    size_t size = 0;
    if (target.clGetProgramInfo(program, CL_PROGRAM_DEVICES, 0, nullptr, &size) != CL_SUCCESS) return {};
    std::vector<cl_device_id> devices(size / sizeof(cl_device_id));
    target.clGetProgramInfo(program, CL_PROGRAM_DEVICES, size, devices.data(), nullptr);
    return devices;
}

cl_context context_of(cl_program program) {
    cl_context context = nullptr;
    target.clGetProgramInfo(program, CL_PROGRAM_CONTEXT, sizeof context, &context, nullptr);
    return context;
}

std::string text_of(cl_device_id device, cl_device_info info) {
    size_t size = 0;
    if (target.clGetDeviceInfo(device, info, 0, nullptr, &size) != CL_SUCCESS || size == 0) return "";
    std::string text(size, '\0');
    target.clGetDeviceInfo(device, info, size, text.data(), nullptr);
    text.resize(size - 1);
    return text;
}

std::vector<std::string> binaries_of(cl_program program) {
    size_t size = 0;
    if (target.clGetProgramInfo(program, CL_PROGRAM_BINARY_SIZES, 0, nullptr, &size) != CL_SUCCESS) return {};
    std::vector<size_t> sizes(size / sizeof(size_t));
    if (target.clGetProgramInfo(program, CL_PROGRAM_BINARY_SIZES, size, sizes.data(), nullptr) != CL_SUCCESS) return {};
    std::vector<std::string> binaries;
    std::vector<char*> places;
    for (size_t one : sizes) binaries.emplace_back(one, '\0');
    for (std::string& binary : binaries) places.push_back(binary.empty() ? nullptr : binary.data());
    if (target.clGetProgramInfo(program, CL_PROGRAM_BINARIES, places.size() * sizeof(char*), places.data(), nullptr) !=
        CL_SUCCESS)
        return {};
    return binaries;
}

cl_int answer(const void* value, size_t size, size_t room, void* place, size_t* size_returned) {
    if (place != nullptr) {
        if (room < size) return CL_INVALID_VALUE;
        std::memcpy(place, value, size);
    }
    if (size_returned != nullptr) *size_returned = size;
    return CL_SUCCESS;
}

void tell(const std::string& line) {
    static const bool asked = [] {
        const char* value = std::getenv("OCL_ZORV_V8_LAYER_VERBOSE");
        return value != nullptr && *value != '\0' && std::strcmp(value, "0") != 0;
    }();
    if (asked) std::fprintf(stderr, "ocl_zorv_v8 layer: %s\n", line.c_str());
}

}  // namespace layer
