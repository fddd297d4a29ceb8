// An OpenCL layer: the ICD loader puts it between an application and its run-time (OPENCL_LAYERS=<this file>), and
// kernels that the application builds from source call this library's built-ins in place of the run-time's.
//
// A built program becomes a compiled one with the built-ins' header before its source, linked with the library's
// bitcode. That link makes a program of its own, of which the application knows nothing: it keeps its handle, and what
// it asks of it is asked of the one or the other here. All other calls go straight to the run-time.
#include <CL/cl_layer.h>

#include <algorithm>
#include <cstring>

#include "layer/building.h"
#include "layer/programs.h"

namespace layer {
namespace {

// ---- Programs. -----------------------------------------------------------------------------------------------------

cl_program CL_API_CALL create_program_with_source(cl_context context, cl_uint count, const char** strings,
                                                  const size_t* lengths, cl_int* error) {
    bool is_valid = count != 0 && strings != nullptr &&
                    std::all_of(strings, strings + count, [](const char* string) { return string != nullptr; });
    if (!is_valid || !is_for_us(context))
        return target.clCreateProgramWithSource(context, count, strings, lengths, error);

    std::string source;
    for (cl_uint i = 0; i < count; ++i)
        source += lengths != nullptr && lengths[i] != 0 ? std::string(strings[i], lengths[i]) : std::string(strings[i]);
    std::string prefixed = source_prefix + source;
    const char* text = prefixed.c_str();
    size_t length = prefixed.size();
    cl_program program = target.clCreateProgramWithSource(context, 1, &text, &length, error);
    if (program != nullptr) programs().add(program, std::move(source));
    return program;
}

cl_int CL_API_CALL retain_program(cl_program program) { return programs().retain(program); }
cl_int CL_API_CALL release_program(cl_program program) { return programs().release(program); }

cl_int CL_API_CALL build_program(cl_program program, cl_uint device_count, const cl_device_id* devices,
                                 const char* options, void(CL_CALLBACK* notify)(cl_program, void*), void* data) {
    return build(program, device_count, devices, options, {notify, data});
}

cl_int CL_API_CALL compile_program(cl_program program, cl_uint device_count, const cl_device_id* devices,
                                   const char* options, cl_uint header_count, const cl_program* headers,
                                   const char** header_names, void(CL_CALLBACK* notify)(cl_program, void*),
                                   void* data) {
    return compile(program, device_count, devices, options, header_count, headers, header_names, {notify, data});
}

cl_program CL_API_CALL link_program(cl_context context, cl_uint device_count, const cl_device_id* devices,
                                    const char* options, cl_uint input_count, const cl_program* inputs,
                                    void(CL_CALLBACK* notify)(cl_program, void*), void* data, cl_int* error) {
    return link(context, device_count, devices, options, input_count, inputs, {notify, data}, error);
}

// Binaries and their sizes are told for each device of the application's program; its executable may have fewer, in
// another order.
cl_int binaries_info(cl_program program, const Executable& executable, cl_program_info info, size_t room, void* place,
                     size_t* size_returned) {
    std::vector<std::string> binaries = binaries_of(executable.program.get());
    std::vector<cl_device_id> made = devices_of(executable.program.get()), all = devices_of(program);
    auto binary_for = [&](cl_device_id device) -> const std::string* {
        auto index = static_cast<size_t>(std::find(made.begin(), made.end(), device) - made.begin());
        return index < binaries.size() ? &binaries[index] : nullptr;
    };
    if (info == CL_PROGRAM_BINARY_SIZES) {
        std::vector<size_t> sizes;
        for (cl_device_id device : all) sizes.push_back(binary_for(device) == nullptr ? 0 : binary_for(device)->size());
        return answer(sizes.data(), sizes.size() * sizeof(size_t), room, place, size_returned);
    }
    size_t size = all.size() * sizeof(unsigned char*);
    if (place != nullptr) {
        if (room < size) return CL_INVALID_VALUE;
        auto* const* places = static_cast<unsigned char* const*>(place);
        for (size_t i = 0; i < all.size(); ++i)
            if (const std::string* binary = binary_for(all[i]); binary != nullptr && places[i] != nullptr)
                std::memcpy(places[i], binary->data(), binary->size());
    }
    if (size_returned != nullptr) *size_returned = size;
    return CL_SUCCESS;
}

cl_int CL_API_CALL get_program_info(cl_program program, cl_program_info info, size_t room, void* place,
                                    size_t* size_returned) {
    std::optional<Program> known = programs().find(program);
    if (known && info == CL_PROGRAM_SOURCE)
        return answer(known->source.c_str(), known->source.size() + 1, room, place, size_returned);
    if (known && known->executable) switch (info) {
            case CL_PROGRAM_BINARY_SIZES:
            case CL_PROGRAM_BINARIES:
                return binaries_info(program, *known->executable, info, room, place, size_returned);
            case CL_PROGRAM_NUM_KERNELS:
            case CL_PROGRAM_KERNEL_NAMES:
            case CL_PROGRAM_SCOPE_GLOBAL_CTORS_PRESENT:
            case CL_PROGRAM_SCOPE_GLOBAL_DTORS_PRESENT:
                return target.clGetProgramInfo(known->executable->program.get(), info, room, place, size_returned);
            default:
                break;
        }
    return target.clGetProgramInfo(program, info, room, place, size_returned);
}

// The log and the status are the compilation's: of the link there is nothing to tell, or it would have been given up.
cl_int CL_API_CALL get_program_build_info(cl_program program, cl_device_id device, cl_program_build_info info,
                                          size_t room, void* place, size_t* size_returned) {
    std::optional<Program> known = programs().find(program);
    if (known && known->options && info == CL_PROGRAM_BUILD_OPTIONS) {
        const std::string& options = *known->options;
        return answer(options.c_str(), options.size() + 1, room, place, size_returned);
    }
    bool of_executable = info == CL_PROGRAM_BINARY_TYPE || info == CL_PROGRAM_BUILD_GLOBAL_VARIABLE_TOTAL_SIZE;
    if (known && known->executable && of_executable) program = known->executable->program.get();
    return target.clGetProgramBuildInfo(program, device, info, room, place, size_returned);
}

// ---- Kernels. ------------------------------------------------------------------------------------------------------

cl_kernel CL_API_CALL create_kernel(cl_program program, const char* name, cl_int* error) {
    cl_program executable = programs().executable_of(program);
    cl_kernel kernel = target.clCreateKernel(executable, name, error);
    if (kernel != nullptr) programs().add_kernel(kernel, program, executable != program);
    return kernel;
}

cl_int CL_API_CALL create_kernels_in_program(cl_program program, cl_uint room, cl_kernel* kernels, cl_uint* count) {
    cl_program executable = programs().executable_of(program);
    cl_uint made = 0;
    cl_int error = target.clCreateKernelsInProgram(executable, room, kernels, &made);
    if (error != CL_SUCCESS) return error;
    if (count != nullptr) *count = made;
    if (kernels != nullptr)
        for (cl_uint i = 0; i < made; ++i) programs().add_kernel(kernels[i], program, executable != program);
    return CL_SUCCESS;
}

cl_kernel CL_API_CALL clone_kernel(cl_kernel kernel, cl_int* error) {
    cl_kernel clone = target.clCloneKernel(kernel, error);
    if (clone != nullptr) programs().add_clone(clone, kernel);
    return clone;
}

cl_int CL_API_CALL retain_kernel(cl_kernel kernel) { return programs().retain(kernel); }
cl_int CL_API_CALL release_kernel(cl_kernel kernel) { return programs().release(kernel); }

cl_int CL_API_CALL get_kernel_info(cl_kernel kernel, cl_kernel_info info, size_t room, void* place,
                                   size_t* size_returned) {
    if (info == CL_KERNEL_PROGRAM)
        if (cl_program program = programs().program_of(kernel); program != nullptr)
            return answer(&program, sizeof program, room, place, size_returned);
    return target.clGetKernelInfo(kernel, info, room, place, size_returned);
}

// ---- The layer itself. ---------------------------------------------------------------------------------------------

// A function that the run-time's loader does not know is not offered by the layer either.
template <class Function>
void take(Function*& entry, Function* function) {
    if (entry != nullptr) entry = function;
}

cl_icd_dispatch make_dispatch() {
    cl_icd_dispatch dispatch = target;
    take(dispatch.clCreateProgramWithSource, create_program_with_source);
    take(dispatch.clRetainProgram, retain_program);
    take(dispatch.clReleaseProgram, release_program);
    take(dispatch.clBuildProgram, build_program);
    take(dispatch.clCompileProgram, compile_program);
    take(dispatch.clLinkProgram, link_program);
    take(dispatch.clGetProgramInfo, get_program_info);
    take(dispatch.clGetProgramBuildInfo, get_program_build_info);
    take(dispatch.clCreateKernel, create_kernel);
    take(dispatch.clCreateKernelsInProgram, create_kernels_in_program);
    take(dispatch.clCloneKernel, clone_kernel);
    take(dispatch.clRetainKernel, retain_kernel);
    take(dispatch.clReleaseKernel, release_kernel);
    take(dispatch.clGetKernelInfo, get_kernel_info);
    return dispatch;
}

}  // namespace
}  // namespace layer

extern "C" {

__attribute__((visibility("default"))) CL_API_ENTRY cl_int CL_API_CALL clGetLayerInfo(cl_layer_info param_name,
                                                                                      size_t param_value_size,
                                                                                      void* param_value,
                                                                                      size_t* param_value_size_ret) {
    static const cl_layer_api_version version = CL_LAYER_API_VERSION_100;
    static const char name[] = "ocl_zorv_v8";
    switch (param_name) {
        case CL_LAYER_API_VERSION:
            return layer::answer(&version, sizeof version, param_value_size, param_value, param_value_size_ret);
        case CL_LAYER_NAME:
            return layer::answer(name, sizeof name, param_value_size, param_value, param_value_size_ret);
        default:
            return CL_INVALID_VALUE;
    }
}

__attribute__((visibility("default"))) CL_API_ENTRY cl_int CL_API_CALL
clInitLayer(cl_uint num_entries, const cl_icd_dispatch* target_dispatch, cl_uint* num_entries_ret,
            const cl_icd_dispatch** layer_dispatch_ret) {
    static cl_icd_dispatch dispatch;
    if (target_dispatch == nullptr || num_entries_ret == nullptr || layer_dispatch_ret == nullptr)
        return CL_INVALID_VALUE;
    // An older loader has fewer functions; the compiler and the linker apart came with OpenCL 1.2.
    layer::target = {};
    std::memcpy(&layer::target, target_dispatch, std::min(num_entries * sizeof(void*), sizeof layer::target));
    if (layer::target.clCompileProgram == nullptr || layer::target.clLinkProgram == nullptr) return CL_INVALID_VALUE;
    dispatch = layer::make_dispatch();
    *layer_dispatch_ret = &dispatch;
    *num_entries_ret = static_cast<cl_uint>(std::min<size_t>(num_entries, sizeof dispatch / sizeof(void*)));
    return CL_SUCCESS;
}

}  // extern "C"
