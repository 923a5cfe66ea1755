// What an operation on the outside world gives: its value, or one message that a player can use.
#pragma once

#include <string>
#include <utility>
#include <variant>

namespace varnstride {

struct Failure {
    std::string message;
};

template <typename Value>
class Result {
 public:
    Result(Value value) : content_(std::move(value)) {}
    Result(Failure failure) : content_(std::move(failure)) {}

    bool Ok() const { return std::holds_alternative<Value>(content_); }
    Value& Get() { return std::get<Value>(content_); }
    const Value& Get() const { return std::get<Value>(content_); }
    const std::string& Message() const { return std::get<Failure>(content_).message; }

 private:
    std::variant<Value, Failure> content_;
};

struct Done {};

}  // namespace varnstride
