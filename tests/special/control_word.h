// The x87 unit's control word in the caller's hands.
#pragma once

#include <cstdint>

// While one of these lives, the unit rounds to 24, 53 or 64 bits: 0x000, 0x200, 0x300.
class ControlWord {
  public:
    explicit ControlWord(uint16_t precision) {
        asm volatile("fnstcw %0" : "=m"(before_) : : "memory");
        set_ = static_cast<uint16_t>((before_ & ~0x300) | precision);
        asm volatile("fldcw %0" : : "m"(set_) : "memory");
    }
    ~ControlWord() { asm volatile("fldcw %0" : : "m"(before_) : "memory"); }
    ControlWord(const ControlWord&) = delete;
    ControlWord& operator=(const ControlWord&) = delete;

    bool stands() const {
        uint16_t now;
        asm volatile("fnstcw %0" : "=m"(now) : : "memory");
        return now == set_;
    }

  private:
    uint16_t before_, set_;
};
