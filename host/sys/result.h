// A value or the error that stands in its place. Errors travel as values; nobody throws for bad input.
#pragma once

#include <cassert>
#include <optional>
#include <type_traits>
#include <utility>
#include <variant>

namespace quor {

// Marks an error on its way into a Result: `return fail(Error{...});`
template <class E>
struct Failure {
    E error;
};

template <class E>
[[nodiscard]] Failure<std::decay_t<E>> fail(E&& error) {
    return {std::forward<E>(error)};
}

template <class T, class E>
class [[nodiscard]] Result {
public:
    using Value = T;
    using ErrorType = E;

    Result(T value) : state_(std::in_place_index<0>, std::move(value)) {}
    template <class F>
    Result(Failure<F> failure) : state_(std::in_place_index<1>, std::move(failure.error)) {}

    [[nodiscard]] bool ok() const { return state_.index() == 0; }
    explicit operator bool() const { return ok(); }

    [[nodiscard]] T& value() & { return checkedValue(*this); }
    [[nodiscard]] const T& value() const& { return checkedValue(*this); }
    [[nodiscard]] T&& value() && { return std::move(checkedValue(*this)); }
    [[nodiscard]] T& operator*() & { return value(); }
    [[nodiscard]] const T& operator*() const& { return value(); }
    [[nodiscard]] T&& operator*() && { return std::move(*this).value(); }
    [[nodiscard]] T* operator->() { return &value(); }
    [[nodiscard]] const T* operator->() const { return &value(); }

    [[nodiscard]] const E& error() const& {
        assert(!ok());
        return *std::get_if<1>(&state_);
    }
    [[nodiscard]] E&& error() && {
        assert(!ok());
        return std::move(*std::get_if<1>(&state_));
    }

    template <class U>
    [[nodiscard]] T valueOr(U&& other) const& {
        return ok() ? value() : static_cast<T>(std::forward<U>(other));
    }

private:
    template <class Self>
    static auto& checkedValue(Self& self) {
        assert(self.ok());
        return *std::get_if<0>(&self.state_);
    }

    std::variant<T, E> state_;
};

// Success without a value, or an error.
template <class E>
class [[nodiscard]] Result<void, E> {
public:
    using Value = void;
    using ErrorType = E;

    Result() = default;
    template <class F>
    Result(Failure<F> failure) : error_(std::move(failure.error)) {}

    [[nodiscard]] bool ok() const { return !error_.has_value(); }
    explicit operator bool() const { return ok(); }
    [[nodiscard]] const E& error() const& {
        assert(!ok());
        return *error_;
    }

private:
    std::optional<E> error_;
};

} // namespace quor
