#include "layer/building.h"

#include <algorithm>
#include <sstream>

#include "layer/programs.h"

namespace layer {
namespace {

std::vector<std::string> words_of(const char* options) {
    std::istringstream text(options == nullptr ? "" : options);
    std::vector<std::string> words;
    for (std::string word; text >> word;) words.push_back(word);
    return words;
}

bool makes_library(const char* options) {
    std::vector<std::string> words = words_of(options);
    return std::find(words.begin(), words.end(), "-create-library") != words.end();
}

// Of the options of a build those that a linker may take as well: all that run-times know, those that every one knows,
// none. Some take the relaxations of arithmetic for nothing but libraries; the compiler has been told of them already.
std::vector<std::string> link_options_of(const char* options) {
    std::string relaxations, information;
    for (const std::string& word : words_of(options)) {
        if (word == "-cl-kernel-arg-info") information = " " + word;
        for (const char* known : {"-cl-denorms-are-zero", "-cl-no-signed-zeros", "-cl-unsafe-math-optimizations",
                                  "-cl-finite-math-only", "-cl-fast-relaxed-math", "-cl-no-subgroup-ifp"})
            if (word == known) relaxations += " " + word;
    }
    std::vector<std::string> choices = {""};
    for (const std::string& choice : {information, relaxations + information})
        if (choice != choices.back()) choices.push_back(choice);
    std::reverse(choices.begin(), choices.end());
    return choices;
}

// The linked program, or null: one that failed has its use for nobody.
cl_program link_all(cl_context context, cl_uint device_count, const cl_device_id* devices, const char* options,
                    const std::vector<cl_program>& inputs, cl_int* error) {
    cl_program linked =
        target.clLinkProgram(context, device_count, devices, options, static_cast<cl_uint>(inputs.size()),
                             inputs.data(), nullptr, nullptr, error);
    if (*error == CL_SUCCESS || linked == nullptr) return linked;
    target.clReleaseProgram(linked);
    return nullptr;
}

std::shared_ptr<const Executable> executable_with(Library& library, cl_program program,
                                                  const std::vector<cl_device_id>& devices, const char* options,
                                                  cl_int* error) {
    *error = library.compile(program, devices, options, {}, {});
    if (*error != CL_SUCCESS) return nullptr;
    std::vector<cl_program> inputs = {program};
    *error = CL_INVALID_BINARY;
    if (!library.add_needed(inputs, devices)) return nullptr;
    for (const std::string& link_options : link_options_of(options)) {
        OwnedProgram linked(link_all(context_of(program), static_cast<cl_uint>(devices.size()), devices.data(),
                                     link_options.c_str(), inputs, error));
        if (linked) return std::make_shared<Executable>(Executable{std::move(linked), devices});
    }
    return nullptr;
}

void tell_of_failure(const char* what, cl_int error) {
    tell(std::string("a program is ") + what + " as it was: with the library it fails, error " + std::to_string(error));
}

}  // namespace

cl_int build(cl_program program, cl_uint device_count, const cl_device_id* devices, const char* options,
             Notification notification) {
    auto forward = [&] {
        return target.clBuildProgram(program, device_count, devices, options, notification.function, notification.data);
    };
    std::optional<Program> known = programs().find(program);
    if (!known || (device_count == 0) != (devices == nullptr) || !notification.is_valid()) return forward();
    if (known->kernels != 0) return CL_INVALID_OPERATION;  // they are the executable's, the run-time would not know
    auto as_it_was = [&] {
        programs().set(program, known->library, std::nullopt, nullptr);
        return forward();
    };
    if (makes_library(options)) return as_it_was();
    std::shared_ptr<Library> library = Library::of(context_of(program));
    if (!library) return as_it_was();

    std::vector<cl_device_id> wanted(devices, devices + device_count);
    if (wanted.empty()) wanted = devices_of(program);
    // An executable for other devices is made anew with the same options, as it would have stayed.
    if (known->executable && known->options == std::string(options == nullptr ? "" : options))
        for (cl_device_id device : known->executable->devices)
            if (std::find(wanted.begin(), wanted.end(), device) == wanted.end()) wanted.push_back(device);

    cl_int error = CL_SUCCESS;
    auto executable = executable_with(*library, program, wanted, options, &error);
    if (!executable) {
        tell_of_failure("built", error);
        return as_it_was();
    }
    programs().set(program, library, options == nullptr ? "" : options, executable);
    notification.send(program);
    return CL_SUCCESS;
}

cl_int compile(cl_program program, cl_uint device_count, const cl_device_id* devices, const char* options,
               cl_uint header_count, const cl_program* headers, const char** header_names, Notification notification) {
    auto forward = [&] {
        return target.clCompileProgram(program, device_count, devices, options, header_count, headers, header_names,
                                       notification.function, notification.data);
    };
    std::optional<Program> known = programs().find(program);
    bool headers_match =
        (header_count == 0) == (headers == nullptr) && (headers == nullptr) == (header_names == nullptr);
    if (!known || (device_count == 0) != (devices == nullptr) || !headers_match || !notification.is_valid())
        return forward();
    if (known->kernels != 0) return CL_INVALID_OPERATION;
    auto as_it_was = [&] {
        programs().set(program, known->library, std::nullopt, nullptr);
        return forward();
    };
    std::shared_ptr<Library> library = Library::of(context_of(program));
    if (!library) return as_it_was();

    cl_int error = library->compile(program, {devices, devices + device_count}, options,
                                    {headers, headers + header_count}, {header_names, header_names + header_count});
    if (error != CL_SUCCESS) {
        tell_of_failure("compiled", error);
        return as_it_was();
    }
    programs().set(program, library, options == nullptr ? "" : options, nullptr);
    notification.send(program);
    return CL_SUCCESS;
}

cl_program link(cl_context context, cl_uint device_count, const cl_device_id* devices, const char* options,
                cl_uint input_count, const cl_program* inputs, Notification notification, cl_int* error) {
    std::vector<cl_program> all(inputs, inputs + (inputs == nullptr ? 0 : input_count));
    for (cl_program& input : all) input = programs().executable_of(input);
    auto as_it_was = [&] {
        return target.clLinkProgram(context, device_count, devices, options, input_count,
                                    inputs == nullptr ? nullptr : all.data(), notification.function, notification.data,
                                    error);
    };
    bool is_valid = !all.empty() && (device_count == 0) == (devices == nullptr) && notification.is_valid();
    if (!is_valid || makes_library(options)) return as_it_was();
    std::shared_ptr<Library> library = Library::of(context);
    std::vector<cl_device_id> wanted(devices, devices + device_count);
    if (wanted.empty()) wanted = devices_of(context);
    std::vector<cl_program> with_library = all;
    if (!library || !library->add_needed(with_library, wanted) || with_library.size() == all.size()) return as_it_was();

    cl_int outcome = CL_SUCCESS;
    cl_program linked = link_all(context, device_count, devices, options, with_library, &outcome);
    if (linked == nullptr) {
        tell_of_failure("linked", outcome);
        return as_it_was();
    }
    if (error != nullptr) *error = CL_SUCCESS;
    notification.send(linked);
    return linked;
}

}  // namespace layer
