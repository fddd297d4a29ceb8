#include "layer/programs.h"

#include <utility>

namespace layer {

void Programs::add(cl_program program, std::string source) {
    std::lock_guard guard(lock_);
    programs_[program] = {.source = std::move(source)};
}

std::optional<Program> Programs::find(cl_program program) {
    std::lock_guard guard(lock_);
    auto found = programs_.find(program);
    if (found == programs_.end()) return std::nullopt;
    return found->second;
}

void Programs::set(cl_program program, std::shared_ptr<Library> library, std::optional<std::string> options,
                   std::shared_ptr<const Executable> executable) {
    // What is replaced goes after the lock: the run-time may call the application back.
    std::lock_guard guard(lock_);
    auto found = programs_.find(program);
    if (found == programs_.end()) return;
    found->second.library.swap(library);
    found->second.options.swap(options);
    found->second.executable.swap(executable);
}

cl_program Programs::executable_of(cl_program program) {
    std::optional<Program> known = find(program);
    return known && known->executable ? known->executable->program.get() : program;
}

cl_int Programs::retain(cl_program program) {
    {
        std::lock_guard guard(lock_);
        if (auto found = programs_.find(program); found != programs_.end()) ++found->second.references;
    }
    return target.clRetainProgram(program);
}

Program Programs::drop_reference(cl_program program) {
    auto found = programs_.find(program);
    if (found == programs_.end() || --found->second.references != 0) return {};
    Program last = std::move(found->second);
    programs_.erase(found);
    return last;
}

cl_int Programs::release(cl_program program) {
    Program last;  // destroyed without the lock, and known no more when the run-time may use its handle again
    {
        std::lock_guard guard(lock_);
        last = drop_reference(program);
    }
    return target.clReleaseProgram(program);
}

void Programs::add_kernel(cl_kernel kernel, cl_program program, bool linked) {
    {
        std::lock_guard guard(lock_);
        auto found = programs_.find(program);
        if (found == programs_.end()) return;
        ++found->second.references;
        ++found->second.kernels;
        kernels_[kernel] = {program, linked};
    }
    // The run-time itself holds the program that the kernel is of.
    if (linked) target.clRetainProgram(program);
}

void Programs::add_clone(cl_kernel clone, cl_kernel kernel) {
    Kernel original = {};
    {
        std::lock_guard guard(lock_);
        auto found = kernels_.find(kernel);
        if (found == kernels_.end()) return;
        original = found->second;
    }
    add_kernel(clone, original.program, original.linked);
}

cl_program Programs::program_of(cl_kernel kernel) {
    std::lock_guard guard(lock_);
    auto found = kernels_.find(kernel);
    return found == kernels_.end() ? nullptr : found->second.program;
}

cl_int Programs::retain(cl_kernel kernel) {
    {
        std::lock_guard guard(lock_);
        if (auto found = kernels_.find(kernel); found != kernels_.end()) ++found->second.references;
    }
    return target.clRetainKernel(kernel);
}

cl_int Programs::release(cl_kernel kernel) {
    cl_program held = nullptr;
    Program last;
    {
        std::lock_guard guard(lock_);
        auto found = kernels_.find(kernel);
        if (found != kernels_.end() && --found->second.references == 0) {
            Kernel gone = found->second;
            kernels_.erase(found);
            if (auto program = programs_.find(gone.program); program != programs_.end()) --program->second.kernels;
            last = drop_reference(gone.program);
            if (gone.linked) held = gone.program;
        }
    }
    cl_int error = target.clReleaseKernel(kernel);
    if (held != nullptr) target.clReleaseProgram(held);
    return error;
}

Programs& programs() {
    static auto* const all = new Programs;
    return *all;
}

}  // namespace layer
