// The yardstick of the searches: a case-blind search of a text in memory, byte by byte.
#pragma once

#include <array>
#include <cctype>
#include <string>

// The first letter through a fold table, then the rest.
class PlainScan {
public:
    explicit PlainScan(const std::string& word)
        : m_word(word) {
        for (size_t byte = 0; byte < m_fold.size(); ++byte)
            m_fold[byte] = static_cast<unsigned char>(std::tolower(static_cast<int>(byte)));
        for (char& letter : m_word)
            letter = static_cast<char>(m_fold[static_cast<unsigned char>(letter)]);
    }

    bool isIn(const std::string& text) const {
        const auto* const bytes = reinterpret_cast<const unsigned char*>(text.data());
        const auto* const word = reinterpret_cast<const unsigned char*>(m_word.data());
        const size_t last = text.size() - m_word.size();
        for (size_t place = 0; place <= last; ++place) {
            if (m_fold[bytes[place]] == word[0] && restIsAt(bytes + place, word))
                return true;
        }
        return false;
    }

private:
    bool restIsAt(const unsigned char* bytes, const unsigned char* word) const {
        for (size_t index = 1; index < m_word.size(); ++index) {
            if (m_fold[bytes[index]] != word[index])
                return false;
        }
        return true;
    }

    std::string m_word;
    std::array<unsigned char, 256> m_fold{};
};
