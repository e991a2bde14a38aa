#pragma once

#include <clocale>
#include <locale>

namespace ormala {

class CommaPunctuation : public std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
};

/// A decimal comma for streams and, where the system has such a locale, for the C library.
class DecimalComma {
  public:
    DecimalComma() {
        for (const char* const name : {"de_DE.UTF-8", "de_DE", "German"}) {
            if (std::setlocale(LC_NUMERIC, name) != nullptr) {
                break;
            }
        }
    }
    ~DecimalComma() {
        std::locale::global(former_);
        std::setlocale(LC_NUMERIC, "C");
    }
    DecimalComma(const DecimalComma&) = delete;
    DecimalComma& operator=(const DecimalComma&) = delete;

  private:
    std::locale former_ =
        std::locale::global(std::locale(std::locale::classic(), new CommaPunctuation));
};

}  // namespace ormala
