// What the layer knows of the application's programs and kernels. The application's handles are the run-time's own;
// beside a program that was built with the library stands the program that it was linked into, whose kernels the
// application gets.
#pragma once

#include <map>
#include <memory>
#include <mutex>
#include <optional>

#include "layer/library.h"
#include "layer/target.h"

namespace layer {

struct Executable {
    OwnedProgram program;
    std::vector<cl_device_id> devices;
};

struct Program {
    std::string source;                // the application's own
    std::shared_ptr<Library> library;  // from its first build on
    // Of the last build or compilation, where that was with the library.
    std::optional<std::string> options;
    std::shared_ptr<const Executable> executable;
    // The application's, and one for each of its kernels, which keep their program.
    size_t references = 1;
    size_t kernels = 0;
};

class Programs {
  public:
    void add(cl_program program, std::string source);
    // A copy of what is known; nothing of programs that are none of ours.
    std::optional<Program> find(cl_program program);
    // The outcome of a build or compilation.
    void set(cl_program program, std::shared_ptr<Library> library, std::optional<std::string> options,
             std::shared_ptr<const Executable> executable);
    cl_int retain(cl_program program);
    cl_int release(cl_program program);
    // What the run-time knows under the application's handle: the executable where there is one.
    cl_program executable_of(cl_program program);

    // A kernel that was made of the application's program; `linked` where it is its executable's.
    void add_kernel(cl_kernel kernel, cl_program program, bool linked);
    void add_clone(cl_kernel clone, cl_kernel kernel);
    // Null for a kernel that is none of ours.
    cl_program program_of(cl_kernel kernel);
    cl_int retain(cl_kernel kernel);
    cl_int release(cl_kernel kernel);

  private:
    struct Kernel {
        cl_program program;
        bool linked;
        size_t references = 1;
    };
    std::mutex lock_;
    std::map<cl_program, Program> programs_;
    std::map<cl_kernel, Kernel> kernels_;

    Program drop_reference(cl_program program);
};

Programs& programs();

}  // namespace layer
