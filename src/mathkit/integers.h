// Whole numbers, fractions and rounding.  Pure, but for ReduceFraction, which writes to its
// arguments.
#pragma once

#include <string>
#include <string_view>

namespace course {

// The 25 primes up to 97, two characters each, right-aligned.
inline constexpr std::string_view kPrimes = " 2 3 5 7111317192329313741434753596167717379838997";
inline constexpr int kPrimeCount = static_cast<int>(kPrimes.size() / 2);
int PrimeAt(int i);  // entry i of kPrimes, 1 to kPrimeCount

// Greatest common factor by Euclid; 0 when a or b is 0.  With a negative argument it can be
// negative.
int Gcf(int a, int b);
// Greatest common factor of whole numbers by the remainder; a of 0 stops the program.
double GcfReal(double a, double b);
// Least common multiple, never negative: |a * b| / GcfReal(a, b).
double Lcm(double a, double b);
// Lowest terms, d positive.  0/d and n/0 both become 0/0.
void ReduceFraction(int& n, int& d);
// How many prime factors up to 211, with repetition, a and b share.  A 0 stops the program.
int CommonPrimeFactors(int a, int b);
// Neither is a multiple of the other: Lcm(a, b) is greater than both.
bool NeitherDivides(int a, int b);

// To the nearest whole number or hundredth; a value held slightly too low, as 2.675, still goes up.
double RoundWhole(double x);
double RoundHundredths(double x);
// Without that nudge: the rounding of decimal sums.
double RoundTenthsPlain(double x);
double RoundHundredthsPlain(double x);

double SmallerOf(double a, double b);  // b when they are equal
// s without its last n characters; empty when it has no more than these.
std::string DropLastChars(const std::string& s, int n);

// Floor, as whole number: IntOf(-2.9) is -3.  Beyond 32 bits it stops the program.
int IntOf(double x);
// -1, 0 or 1.
int Sgn(double x);
// Half to even, the rounding of a real value put into a whole one.
long RoundHalfEven(double x);

}  // namespace course
