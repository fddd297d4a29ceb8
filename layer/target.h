// What lies below the layer: the run-time, as the ICD loader hands it over.
#pragma once

#define CL_TARGET_OPENCL_VERSION 300
#define CL_USE_DEPRECATED_OPENCL_1_0_APIS
#define CL_USE_DEPRECATED_OPENCL_1_1_APIS
#define CL_USE_DEPRECATED_OPENCL_1_2_APIS
#define CL_USE_DEPRECATED_OPENCL_2_0_APIS
#define CL_USE_DEPRECATED_OPENCL_2_1_APIS
#define CL_USE_DEPRECATED_OPENCL_2_2_APIS
#include <CL/cl.h>
#include <CL/cl_icd.h>

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace layer {

// The functions that the layer calls; where it takes the place of one, the application calls the layer's.
extern cl_icd_dispatch target;

struct ReleaseProgram {
    void operator()(cl_program program) const { target.clReleaseProgram(program); }
};
using OwnedProgram = std::unique_ptr<std::remove_pointer_t<cl_program>, ReleaseProgram>;

std::vector<cl_device_id> devices_of(cl_context context);
std::vector<cl_device_id> devices_of(cl_program program);
cl_context context_of(cl_program program);
std::string text_of(cl_device_id device, cl_device_info info);
// The program's binary for each of its devices; empty where the run-time has none to give.
std::vector<std::string> binaries_of(cl_program program);

// What a query returns, by the rules of all clGet...Info.
cl_int answer(const void* value, size_t size, size_t room, void* place, size_t* size_returned);

// A line on the standard error, if OCL_ZORV_V8_LAYER_VERBOSE asks for such lines.
void tell(const std::string& line);

}  // namespace layer
