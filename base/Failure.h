#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>

namespace orvanta {

// Every failure that the system raises: a number, a source and a description. The description is what the user reads.
class Failure : public std::exception {
public:
    // The number of the failures that the system's own classes raise by name.
    static constexpr std::uint32_t kOwn = 0x80040001u;

    Failure(std::uint32_t lNumber, std::u16string_view sSource, std::u16string_view sDescription);

    std::uint32_t Number() const { return m_lNumber; }
    const std::u16string& Source() const { return m_sSource; }
    const std::u16string& Description() const { return m_sDescription; }

    // The description in ASCII, for debuggers and test logs; characters beyond are shown as '?'.
    const char* what() const noexcept override { return m_sWhat.c_str(); }

private:
    std::uint32_t m_lNumber;
    std::u16string m_sSource;
    std::u16string m_sDescription;
    std::string m_sWhat;
};

// The failures of the run-time system, with their standard numbers and texts. Their source is empty.
Failure InvalidProcedureCall();                                                    // 5
Failure Overflow();                                                                // 6
Failure SubscriptOutOfRange();                                                     // 9
Failure DivisionByZero();                                                          // 11
Failure TypeMismatch();                                                            // 13
Failure KeyAlreadyInUse();                                                         // 457
Failure OwnFailure(std::u16string_view sSource, std::u16string_view sDescription); // Failure::kOwn

} // namespace orvanta
