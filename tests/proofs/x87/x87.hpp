// The register of src/x87/x87.hpp as an expression: with this header in its place the kernels, as
// they are, compute the formulas of what they compute.
//
// Ext is a formula. Each operation on it makes a new one, and a store (narrow, round_to_double)
// makes one too: an operation is a rounding to 64 bits, a store a rounding to 53. Equal formulas
// are one formula. A double field of an element holds a stored formula as a NaN that carries its
// number; any other double is the constant that it is.
//
// Operations that are exact whatever their operand is are carried out: x + 0, x 0, x 1, x/1, the
// store of what a double holds anyway, and an operation on two constants whose result is a double.
#pragma once

#include <cstdint>
#include <string>

#define DAKVM_EXPORT extern "C"
#define DAKVM_INLINE inline
#define DAKVM_WHOLE

namespace dakvm::x87 {

struct Ext {
  int formula;

  Ext() : formula(-1) {}
  Ext(double number);
  static Ext numbered(int formula) {
    Ext ext;
    ext.formula = formula;
    return ext;
  }
};

Ext operator+(Ext a, Ext b);
Ext operator-(Ext a, Ext b);
Ext operator*(Ext a, Ext b);
Ext operator/(Ext a, Ext b);

double store(Ext value);

template <class T>
T narrow(Ext value) {
  static_assert(sizeof(T) == sizeof(double), "no proof is about single precision");
  return store(value);
}
inline double round_to_double(Ext value) { return store(value); }
inline float round_to_float(Ext);  // not here: see narrow

template <class T>
T opaque(T value) {
  return value;
}
template <class T>
Ext load(const T* number) {
  return *number;
}
inline Ext computed(Ext value) { return value; }
template <class T>
void settle(T*) {}

}  // namespace dakvm::x87
