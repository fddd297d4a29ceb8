#include "layer/library.h"

#include <dlfcn.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <set>
#include <string_view>
#include <utility>

#include "include/grid_names.h"

namespace layer {
namespace {

// The files themselves, with a zero at their end.
#define EMBEDDED(name, file)                                            \
    extern "C" __attribute__((visibility("hidden"))) const char name[]; \
    asm(".pushsection .rodata\n" #name ":\n.incbin \"" file "\"\n.byte 0\n.popsection\n")
EMBEDDED(exports_header, "ocl_zorv_v8.h");
EMBEDDED(builtins_header, "ocl_zorv_v8_builtins.h");

struct Header {
    const char *name, *text;
};
const Header headers[] = {{"ocl_zorv_v8.h", exports_header}, {"ocl_zorv_v8_builtins.h", builtins_header}};

std::string environment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

// Programs that gave up precision of their own accord may be given the native functions, if the user says so.
bool wants_native(std::string_view options) {
    std::string choice = environment("OCL_ZORV_V8_LAYER_NATIVE");
    if (choice == "relaxed")
        return options.find("-cl-fast-relaxed-math") != std::string_view::npos ||
               options.find("-cl-unsafe-math-optimizations") != std::string_view::npos;
    return choice == "always";
}

// The richest instruction set that there is bitcode for; the processor's own name says nothing about the system.
const char* instruction_set() {
    __builtin_cpu_init();
    bool v3 = __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma") && __builtin_cpu_supports("bmi") &&
              __builtin_cpu_supports("bmi2");
    return v3 ? "x86-64-v3" : "x86-64";
}

// Where the parts are: beside the layer's own file, unless the user names another folder.
std::string bitcode_folder() {
    std::string parent = environment("OCL_ZORV_V8_BITCODE");
    if (parent.empty()) {
        Dl_info self;
        if (dladdr(reinterpret_cast<const void*>(&bitcode_folder), &self) == 0) return "";
        parent = self.dli_fname;
        parent.resize(parent.find_last_of('/') + 1);
    }
    return parent + "/ocl_zorv_v8-" + instruction_set() + "/";
}

// A part has the exports of one source.
struct Export {
    std::string_view stem, part;  // the name before its number of lanes
};
const Export exports[] = {
#define FAMILY(base, precision, class_, signature, home, traits, bound) \
    {TEXT(PASTE5(__ocl_zorv_v8_, base, LETTER_##precision, , )), #home},
#include "include/grid.def"
};

// The parts whose exports an object file calls, or a few more: names in a file need not end where one sees it.
std::set<std::string> parts_called_by(std::string_view object) {
    constexpr std::string_view beginning = "__ocl_zorv_v8_";
    std::set<std::string> parts;
    for (size_t at = object.find(beginning); at != std::string_view::npos; at = object.find(beginning, at + 1))
        for (const Export& one : exports) {
            std::string_view name = object.substr(at, one.stem.size() + 1);
            if (name.starts_with(one.stem) && std::isdigit(static_cast<unsigned char>(name.back())) != 0)
                parts.emplace(one.part);
        }
    return parts;
}

// Why a device cannot take the library; empty if it may.
std::string objection_to(cl_device_id device) {
    cl_device_type type = 0;
    cl_uint address_bits = 0;
    cl_bool little_endian = CL_FALSE;
    target.clGetDeviceInfo(device, CL_DEVICE_TYPE, sizeof type, &type, nullptr);
    target.clGetDeviceInfo(device, CL_DEVICE_ADDRESS_BITS, sizeof address_bits, &address_bits, nullptr);
    target.clGetDeviceInfo(device, CL_DEVICE_ENDIAN_LITTLE, sizeof little_endian, &little_endian, nullptr);
    if ((type & CL_DEVICE_TYPE_CPU) == 0) return "not a CPU";
    if (address_bits != 64 || little_endian == CL_FALSE) return "not an x86-64 processor";
    return "";
}

// What came of the devices that were tried, each told of once; those that failed are not tried again.
class Devices {
  public:
    bool have_refused(cl_device_id device) {
        std::lock_guard guard(lock_);
        auto found = found_.find(device);
        return found != found_.end() && !found->second;
    }
    void refuse(cl_device_id device, const std::string& reason) { set(device, false, " is left as it was: " + reason); }
    void serve(cl_device_id device, const std::string& folder) { set(device, true, " computes with " + folder); }

  private:
    std::mutex lock_;
    std::map<cl_device_id, bool> found_;

    void set(cl_device_id device, bool served, const std::string& text) {
        std::lock_guard guard(lock_);
        auto [place, is_new] = found_.try_emplace(device, served);
        if (is_new || place->second != served) tell(text_of(device, CL_DEVICE_NAME) + text);
        place->second = served;
    }
};
// The application may call until the very end, so these are never destroyed.
Devices& devices_tried() {
    static auto* const all = new Devices;
    return *all;
}

}  // namespace

const char* const source_prefix = "#ifdef OCL_ZORV_V8_LAYER\n"
                                  "#include \"ocl_zorv_v8_builtins.h\"\n"
                                  "#ifdef OCL_ZORV_V8_LAYER_NATIVE\n"
                                  "#include \"ocl_zorv_v8_native.h\"\n"
                                  "#endif\n"
                                  "#endif\n"
                                  "#line 1\n";

bool is_for_us(cl_context context) {
    std::vector<cl_device_id> devices = devices_of(context);
    for (cl_device_id device : devices)
        if (std::string objection = objection_to(device); !objection.empty()) devices_tried().refuse(device, objection);
    return std::none_of(devices.begin(), devices.end(),
                        [](cl_device_id device) { return devices_tried().have_refused(device); });
}

Library::Library(cl_context context) : context_(context) {
    for (const Header& header : headers) {
        const char* text = header.text;
        headers_.emplace_back(target.clCreateProgramWithSource(context, 1, &text, nullptr, nullptr));
    }
}

OwnedProgram Library::load(const Part& part) const {
    auto refuse = [&part](const std::string& reason) {
        for (cl_device_id device : part.devices) devices_tried().refuse(device, reason);
        return nullptr;
    };
    std::string folder = bitcode_folder(), path = folder + part.name + ".bc";
    std::ifstream file(path, std::ios::binary);
    std::string bitcode{std::istreambuf_iterator<char>(file), {}};
    if (bitcode.empty()) return refuse("there is no " + path);

    auto count = static_cast<cl_uint>(part.devices.size());
    std::vector<const unsigned char*> binaries(count, reinterpret_cast<const unsigned char*>(bitcode.data()));
    std::vector<size_t> sizes(count, bitcode.size());
    cl_int error = CL_SUCCESS;
    OwnedProgram loaded(target.clCreateProgramWithBinary(context_, count, part.devices.data(), sizes.data(),
                                                         binaries.data(), nullptr, &error));
    if (loaded)
        error = target.clBuildProgram(loaded.get(), count, part.devices.data(), "-create-library", nullptr, nullptr);
    if (error != CL_SUCCESS) return refuse("it does not take " + path + ", error " + std::to_string(error));
    for (cl_device_id device : part.devices) devices_tried().serve(device, folder);
    return loaded;
}

std::shared_ptr<Library> Library::of(cl_context context) {
    static std::mutex lock;
    static auto* const libraries = new std::map<cl_context, std::weak_ptr<Library>>;

    if (!is_for_us(context)) return nullptr;
    std::lock_guard guard(lock);
    std::erase_if(*libraries, [](const auto& entry) { return entry.second.expired(); });
    std::weak_ptr<Library>& known = (*libraries)[context];
    std::shared_ptr<Library> library = known.lock();
    if (!library) known = library = std::make_shared<Library>(context);
    return library;
}

cl_int Library::compile(cl_program program, const std::vector<cl_device_id>& devices, const char* options,
                        std::vector<cl_program> headers_given, std::vector<const char*> names) const {
    for (size_t i = 0; i < headers_.size(); ++i) {
        headers_given.push_back(headers_[i].get());
        names.push_back(headers[i].name);
    }
    std::string all_options = options == nullptr ? "" : options;
    bool native = wants_native(all_options);
    all_options += " -D OCL_ZORV_V8_LAYER";
    if (native) all_options += " -D OCL_ZORV_V8_NATIVE";
    return target.clCompileProgram(
        program, static_cast<cl_uint>(devices.size()), devices.empty() ? nullptr : devices.data(), all_options.c_str(),
        static_cast<cl_uint>(headers_given.size()), headers_given.data(), names.data(), nullptr, nullptr);
}

bool Library::add_needed(std::vector<cl_program>& compiled, const std::vector<cl_device_id>& devices) {
    std::set<std::string> names;
    for (cl_program program : compiled)
        for (const std::string& binary : binaries_of(program)) names.merge(parts_called_by(binary));
    std::lock_guard guard(lock_);
    for (const std::string& name : names) {
        Part part = {name, devices};
        OwnedProgram& bitcode = parts_[part];
        if (!bitcode) bitcode = load(part);
        if (!bitcode) return false;
        compiled.push_back(bitcode.get());
    }
    return true;
}

}  // namespace layer
