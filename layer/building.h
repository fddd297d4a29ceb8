// What an application does to make kernels of sources, done with the library where its devices take it, and left as it
// is where they do not or where it does not succeed.
#pragma once

#include "layer/target.h"

namespace layer {

// The application's function, called when a program is built, with what it wants to be told then.
struct Notification {
    void(CL_CALLBACK* function)(cl_program, void*);
    void* data;

    bool is_valid() const { return function != nullptr || data == nullptr; }
    void send(cl_program program) const {
        if (function != nullptr) function(program, data);
    }
};

cl_int build(cl_program program, cl_uint device_count, const cl_device_id* devices, const char* options,
             Notification notification);

cl_int compile(cl_program program, cl_uint device_count, const cl_device_id* devices, const char* options,
               cl_uint header_count, const cl_program* headers, const char** header_names, Notification notification);

cl_program link(cl_context context, cl_uint device_count, const cl_device_id* devices, const char* options,
                cl_uint input_count, const cl_program* inputs, Notification notification, cl_int* error);

}  // namespace layer
