// The binary digits of 1/pi, any stretch of them.
#pragma once

#include <gmp.h>

#include "tools/tables/table.h"

namespace tables {

// floor(2^shift / pi) mod 2^bits, for shifts to 1400.
class InversePi {
  public:
    InversePi() {
        mpfr_t quotient;
        mpfr_init2(quotient, 2000);
        mpfr_const_pi(quotient, MPFR_RNDU);
        mpfr_ui_div(quotient, 1, quotient, MPFR_RNDD);
        mpfr_mul_2si(quotient, quotient, longest, MPFR_RNDN);
        mpz_init(digits_);
        mpfr_get_z(digits_, quotient, MPFR_RNDD);
        mpfr_clear(quotient);
        mpz_init(stretch_);
    }
    ~InversePi() {
        mpz_clear(digits_);
        mpz_clear(stretch_);
    }
    InversePi(const InversePi&) = delete;
    InversePi& operator=(const InversePi&) = delete;

    mpz_srcptr stretch(int shift, unsigned bits) {
        mpz_fdiv_q_2exp(stretch_, digits_, static_cast<unsigned>(longest - shift));
        mpz_fdiv_r_2exp(stretch_, stretch_, bits);
        return stretch_;
    }
    // The stretch in hexadecimal words, highest first.
    void print(int shift, unsigned words, unsigned word_bits) {
        mpz_srcptr digits = stretch(shift, words * word_bits);
        for (unsigned word = words; word-- > 0;) {
            unsigned long long value = 0;
            for (unsigned bit = word_bits; bit-- > 0;)
                value = value << 1 | static_cast<unsigned>(mpz_tstbit(digits, word * word_bits + bit));
            std::printf("0x%0*llx, ", static_cast<int>(word_bits / 4), value);
        }
    }

  private:
    static constexpr int longest = 1400;
    mpz_t digits_, stretch_;
};

}  // namespace tables
