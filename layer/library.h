// The math library as the run-time takes it: headers for its compiler, bitcode for its linker.
#pragma once

#include <compare>
#include <map>
#include <memory>
#include <mutex>
#include <string>

#include "layer/target.h"

namespace layer {

// What stands before every source. It does nothing until the layer's own options come with it, so a program can
// still be built as if there were no layer.
extern const char* const source_prefix;

// Can the devices of this context take the library, as far as they tell before they are tried?
bool is_for_us(cl_context context);

// The library in one context. The programs that were built with it hold it, and it holds the context: with the last of
// them both go.
class Library {
  public:
    // Null where a device of the context cannot take it.
    static std::shared_ptr<Library> of(cl_context context);
    explicit Library(cl_context context);

    // clCompileProgram with the built-ins replaced. The application's headers come along.
    cl_int compile(cl_program program, const std::vector<cl_device_id>& devices, const char* options,
                   std::vector<cl_program> headers, std::vector<const char*> header_names) const;
    // Adds the bitcode that these compiled programs need to be linked for these devices: none, if they call nothing of
    // the library. False if the run-time does not take it.
    bool add_needed(std::vector<cl_program>& compiled, const std::vector<cl_device_id>& devices);

  private:
    // The bitcode is in parts, so that a link takes no longer than what is called is long. A part is loaded once for
    // each list of devices: run-times want one list in all that they link.
    struct Part {
        std::string name;
        std::vector<cl_device_id> devices;
        auto operator<=>(const Part&) const = default;
    };
    OwnedProgram load(const Part& part) const;

    cl_context context_;
    std::vector<OwnedProgram> headers_;
    std::mutex lock_;
    std::map<Part, OwnedProgram> parts_;
};

}  // namespace layer
