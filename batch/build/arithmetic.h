// What the models are made of in the loops of the batch library: plain doubles, an error indicator of their
// own, and a memory for what depends on parameters alone.
#pragma once

#include <bit>
#include <cstdint>

namespace ansatz {

using Real = double;
using Scalar = double;

namespace batch {

/// Results of functions of parameters that a loop has computed.
class Kept {
public:
    /// A function and the bits of its arguments.
    struct Key {
        const void* function;
        std::uint64_t first, second;
        friend constexpr bool operator==(const Key&, const Key&) = default;
    };

    /// What is kept for this key, or null.
    const Scalar* find(const Key& key) {
        for (int looks = 0; looks < size_; ++looks) { // points ask in the same order: mostly one look
            const Entry& entry = entries_[next_];
            next_ = next_ + 1 < size_ ? next_ + 1 : 0;
            if (entry.key == key) return &entry.value;
        }
        return nullptr;
    }

    void keep(const Key& key, Scalar value) {
        if (size_ < most) entries_[size_++] = {key, value};
    }

private:
    static constexpr int most = 32;
    struct Entry {
        Key key;
        Scalar value;
    };
    Entry entries_[most];
    int size_ = 0, next_ = 0;
};

/// What belongs to the loop that runs on this thread. Every point begins without a pending error, and the
/// functions decide from results alone, so the C library's errno is not looked at.
struct Running {
    int indicator = 0;
    Kept* kept = nullptr;
};
[[gnu::tls_model("initial-exec")]] inline constinit thread_local Running running;

template <auto f> inline constexpr char address_of = 0;

template <auto f> constexpr Kept::Key key_of(Scalar first, Scalar second = 0) {
    return {&address_of<f>, std::bit_cast<std::uint64_t>(first), std::bit_cast<std::uint64_t>(second)};
}

} // namespace batch

inline int& indicator() {
    return batch::running.indicator;
}

/// f of arguments that depend on parameters and on no x: computed at the first point and kept for the others.
/// What ends in an error is computed each time, so that every point sees its error.
template <auto f, class... Arguments> Scalar of_parameters(Arguments... arguments) {
    batch::Kept& kept = *batch::running.kept;
    const batch::Kept::Key key = batch::key_of<f>(arguments...);
    if (const Scalar* known = kept.find(key)) return *known;
    const Scalar result = f(arguments...);
    if (indicator() == 0) kept.keep(key, result);
    return result;
}

} // namespace ansatz
