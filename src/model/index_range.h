// Whole numbers from first up to, not including, last, for range loops over records.
#pragma once

namespace varnstride {

class IndexRange {
 public:
    class Iterator {
     public:
        constexpr explicit Iterator(int value) : value_(value) {}
        constexpr int operator*() const { return value_; }
        constexpr Iterator& operator++() {
            ++value_;
            return *this;
        }
        friend constexpr bool operator==(Iterator, Iterator) = default;

     private:
        int value_;
    };

    constexpr IndexRange(int first, int last) : first_(first), last_(last < first ? first : last) {}
    constexpr Iterator begin() const { return Iterator(first_); }
    constexpr Iterator end() const { return Iterator(last_); }

 private:
    int first_;
    int last_;
};

}  // namespace varnstride
