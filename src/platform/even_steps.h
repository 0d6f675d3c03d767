// A place that grows by an even share from step to step, kept as a whole number and a remainder, so
// that no digit is ever lost.
#pragma once

namespace ombrelia {

__extension__ using Wide = __int128;

template <typename Int>
Int floorQuotient(Int n, Int d) {
    // Most edges are steep, and most parts begin at a corner: no division then.
    if (n >= 0 && n < d) {
        return 0;
    }
    if (n < 0 && n >= -d) {
        return -1;
    }
    const Int quotient = n / d;
    return n % d < 0 ? quotient - 1 : quotient;
}

// floor(n / d) for a numerator that grows by the same amount at each step; d above 0.
template <typename Int>
struct EvenSteps {
    Int whole = 0;
    Int rest = 0;
    Int wholeStep = 0;
    Int restStep = 0;
    Int divisor = 1;

    // Products are made as Product, which must hold them.
    template <typename Product>
    void start(Product n, Product growth, Product d) {
        const Product first = floorQuotient(n, d);
        const Product each = floorQuotient(growth, d);
        whole = static_cast<Int>(first);
        rest = static_cast<Int>(n - first * d);
        wholeStep = static_cast<Int>(each);
        restStep = static_cast<Int>(growth - each * d);
        divisor = static_cast<Int>(d);
    }

    void step() {
        whole += wholeStep;
        rest += restStep;
        if (rest >= divisor) {
            rest -= divisor;
            ++whole;
        }
    }
};

}  // namespace ombrelia
