// The scalar trigonometric entries, and the single-precision vectors that hand arguments to them.
#include <array>

#include "arrays.hpp"
#include "notifications.hpp"

namespace dakvm::test {
namespace {

constexpr int32_t ok = DAKVM_STATUS_OK, domain = DAKVM_STATUS_DOMAIN;

template <class T>
using OneResult = void (*)(int32_t, const T*, T*, int32_t*);
template <class T>
using TwoResults = void (*)(int32_t, const T*, T*, T*, int32_t*);

// An entry in its three forms; SinCos has the other signature.
template <class T>
struct Entry {
  const char* family;
  std::array<OneResult<T>, 3> one;
  std::array<TwoResults<T>, 3> two;

  void operator()(size_t form, int32_t i, const Word<T>* src, Word<T>* dst1, Word<T>* dst2,
                  int32_t* status) const {
    if (one[form] != nullptr)
      one[form](i, numbers<T>(src), numbers<T>(dst1), status);
    else
      two[form](i, numbers<T>(src), numbers<T>(dst1), numbers<T>(dst2), status);
  }
  bool has_two_results() const { return two[0] != nullptr; }
};
constexpr const char* forms[] = {"A11", "LA", "HA"};

#define DAKVM_FORMS(entry) \
  { entry##_A11, entry##_LA, entry##_HA }
const Entry<double> double_entries[] = {{"Sin", DAKVM_FORMS(gaxdSin_SC), {}},
                                        {"Cos", DAKVM_FORMS(gaxdCos_SC), {}},
                                        {"SinCos", {}, DAKVM_FORMS(gaxdSinCos_SC)},
                                        {"Tan", DAKVM_FORMS(gaxdTan_SC), {}}};
const Entry<float> float_entries[] = {{"Sin", DAKVM_FORMS(gaxsSin_SC), {}},
                                      {"Cos", DAKVM_FORMS(gaxsCos_SC), {}},
                                      {"SinCos", {}, DAKVM_FORMS(gaxsSinCos_SC)},
                                      {"Tan", DAKVM_FORMS(gaxsTan_SC), {}}};
#undef DAKVM_FORMS

template <class Body>
void for_each_entry(Body body) {
  for (const auto& entry : double_entries) {
    SCOPED_TRACE(entry.family);
    body(entry, double{});
  }
  for (const auto& entry : float_entries) {
    SCOPED_TRACE(std::string(entry.family) + " of floats");
    body(entry, float{});
  }
}

template <class T>
constexpr Word<T> default_nan = sign_mask<T> | exponent_mask<T> | quiet_bit<T>;

template <class T>
Single<T> evaluate_entry(const Entry<T>& entry, Word<T> x, size_t form = 2) {
  Single<T> single{{}, 77, 0};
  clear_flags();
  entry(form, 0, &x, &single.result[0], &single.result[1], &single.status);
  single.flags = raised_flags();
  return single;
}

TEST(ScalarTrigonometry, InfinitiesAreReportedUnderTheFormsName) {
  for_each_entry([]<class T>(const Entry<T>& entry, T) {
    for (size_t form = 0; form < 3; ++form)
      for (const Word<T> sign : {Word<T>{0}, sign_mask<T>}) {
        const Word<T> src[3] = {1, 2, exponent_mask<T> | sign};
        Word<T> dst1[3] = {5, 6, 7}, dst2[3] = {5, 6, 7};
        int32_t status = 77;
        notifications.clear();
        clear_flags();
        entry(form, 2, src, dst1, dst2, &status);
        EXPECT_EQ(raised_flags(), invalid);
        EXPECT_EQ(status, domain);
        EXPECT_EQ(dst1[2], default_nan<T>);
        EXPECT_EQ(dst1[1], Word<T>{6});
        EXPECT_EQ(dst2[2], entry.has_two_results() ? default_nan<T> : Word<T>{7});
        ASSERT_EQ(notifications.size(), 1u);
        const auto& n = notifications[0];
        EXPECT_EQ(n.code, domain);
        EXPECT_EQ(n.index, 2);
        EXPECT_EQ(n.arrays[1], src);
        EXPECT_EQ(n.arrays[2], dst1);
        EXPECT_EQ(n.arrays[3], entry.has_two_results() ? dst2 : dst1);
        EXPECT_EQ(n.name,
                  (sizeof(T) == 8 ? "d" : "s") + std::string(entry.family) + "_" + forms[form]);
      }
  });
}

// The name that the caller gives is the one that is notified.
TEST(ScalarTrigonometry, EntriesWithoutSuffixTakeAName) {
  const double x[2] = {0.5, -__builtin_inf()};
  double sine[2], cosine[2];
  int32_t status = ok;
  notifications.clear();
  gaxdSin_SC(1, x, sine, &status, "one");
  gaxdCos_SC(1, x, cosine, &status, "two");
  gaxdSinCos_SC(1, x, sine, cosine, &status, "three");
  gaxdTan_SC(1, x, sine, &status, "four");
  ASSERT_EQ(notifications.size(), 4u);
  for (size_t k = 0; k < 4; ++k)
    EXPECT_EQ(notifications[k].name, (std::array{"one", "two", "three", "four"}[k]));
}

// NaN and zeros; nothing but an infinity touches the status.
TEST(ScalarTrigonometry, SpecialArguments) {
  for_each_entry([]<class T>(const Entry<T>& entry, T) {
    const Word<T> one = word_of(T{1}), minus = sign_mask<T>;
    const bool cosine = entry.family == std::string("Cos");
    struct {
      Word<T> x, first, second;
      int flags;
    } const cases[] = {
        {0, cosine ? one : 0, one, 0},
        {minus, cosine ? one : minus, one, 0},
        {exponent_mask<T> | quiet_bit<T> | 5, exponent_mask<T> | quiet_bit<T> | 5,
         exponent_mask<T> | quiet_bit<T> | 5, 0},
        {exponent_mask<T> | 5, exponent_mask<T> | quiet_bit<T> | 5,
         exponent_mask<T> | quiet_bit<T> | 5, invalid},
    };
    for (const auto& c : cases) {
      const auto got = evaluate_entry(entry, c.x);
      EXPECT_EQ(got.result[0], c.first) << c.x;
      EXPECT_EQ(got.result[1], entry.has_two_results() ? c.second : 0) << c.x;
      EXPECT_EQ(got.status, 77);
      EXPECT_EQ(got.flags, c.flags);
    }
  });
}

// One result in all modes of the caller and from all forms; the control word comes back.
TEST(ScalarTrigonometry, OwnModesForTheCallOnly) {
  for_each_entry([]<class T>(const Entry<T>& entry, T) {
    for (const double high : {100.0, 0x1p+20, 0x1p+100})
      for (const Word<T> x : mixed_words<T>(300, -high, high, 0.1, 5)) {
        const auto expected = evaluate_entry(entry, x);
        for (const int precision : {0, 2, 3})
          for (const int rounding : {0, 1, 2, 3}) {
            const ScopedModes modes(precision, rounding);
            const uint16_t before = control_word();
            const auto got = evaluate_entry(entry, x, static_cast<size_t>(rounding % 3));
            ASSERT_EQ(control_word(), before);
            ASSERT_TRUE(stack_is_empty());
            ASSERT_EQ(got.result[0], expected.result[0]) << x;
            ASSERT_EQ(got.result[1], expected.result[1]) << x;
            ASSERT_EQ(got.flags, expected.flags) << x;
          }
      }
  });
}

// Correctly rounded, next to zeros and poles; the last is where the quadrant is hardest to get.
TEST(ScalarTrigonometry, KnownResults) {
  struct {
    uint64_t x, sine, cosine, tangent;
  } const known[] = {
      {0x3ff921fb54442d18, 0x3ff0000000000000, 0x3c91a62633145c07, 0x434d02967c31cdb5},
      {0x416b951f1572eba5, 0xbff0000000000000, 0xbc3f54f5227a4e84, 0x43a057584c429b3a},
      {0x7506ac5b262ca1ff, 0x3ff0000000000000, 0xbc214ae72e6ba22f, 0xc3bd9ba9a7975636},
      {0x7fefffffffffffff, 0x3f7452fc98b34e97, 0xbfefffe62ecfab75, 0xbf74530cfe729484},
  };
  for (const auto& k : known) {
    EXPECT_EQ(evaluate_entry(double_entries[0], k.x).result[0], k.sine);
    EXPECT_EQ(evaluate_entry(double_entries[1], k.x).result[0], k.cosine);
    EXPECT_EQ(evaluate_entry(double_entries[2], k.x).result[0], k.sine);
    EXPECT_EQ(evaluate_entry(double_entries[2], k.x).result[1], k.cosine);
    EXPECT_EQ(evaluate_entry(double_entries[3], k.x).result[0], k.tangent);
  }
}

constexpr uint32_t one_f = 0x3f800000, inf_f = 0x7f800000, minus_f = sign_mask<float>;

const registry::Function& single_precision(const char* family) {
  return function_named(family, registry::Type::f32, "A21");
}

TEST(TrigonometrySingle, SpecialArguments) {
  const uint16_t tiny = underflow | inexact;
  for (const char* family : {"Sin", "Cos", "SinCos", "Tan"})
    expect_cases<float>(family, {{inf_f, default_nan<float>, domain, invalid},
                                 {inf_f | minus_f, default_nan<float>, domain, invalid},
                                 {0x7fc00123, 0x7fc00123, ok, 0},
                                 {0xffc00123, 0xffc00123, ok, 0},
                                 {inf_f + 1, 0x7fc00001, ok, invalid}});
  for (const char* family : {"SinCos", "Tan"})
    expect_cases<float>(family, {{0, 0, ok, 0},
                                 {minus_f, minus_f, ok, 0},
                                 {1, 1, ok, inexact},
                                 {minus_f | 0x007fffff, minus_f | 0x007fffff, ok, inexact},
                                 {0x00800000, 0x00800000, ok, inexact}});
  // Its polynomial begins with 1.000000002 x.
  expect_cases<float>("Sin", {{0, 0, ok, 0},
                              {minus_f, minus_f, ok, 0},
                              {1, 1, ok, tiny},
                              {minus_f | 0x007fffff, minus_f | 0x007fffff, ok, tiny}});
  expect_cases<float>("Cos", {{0, one_f, ok, inexact}, {minus_f | 1, one_f, ok, inexact}});
  for (const uint32_t x : {0u, minus_f, 1u}) {
    EXPECT_EQ(evaluate_one<float>(single_precision("SinCos"), x).result[1], one_f);
  }
}

// Up to the bound a chain of floats, above it the entry's result and flags.
TEST(TrigonometrySingle, EntriesTakeOverAboveTheBound) {
  const uint32_t bounds[] = {0x49742400, 0x48f42400, 0x49742400, 0x47fa0000};
  for (size_t k = 0; k < 4; ++k) {
    const auto& entry = float_entries[k];
    const auto& function = single_precision(entry.family);
    int different = 0;
    for (uint32_t step = 1; step <= 1000; ++step)
      for (const uint32_t sign : {0u, minus_f}) {
        const uint32_t above = (bounds[k] + step) | sign, below = (bounds[k] + 1 - step) | sign;
        const auto got = evaluate_one<float>(function, above);
        const auto expected = evaluate_entry(entry, above);
        ASSERT_EQ(got.result[0], expected.result[0]) << above;
        ASSERT_EQ(got.result[1], expected.result[1]) << above;
        ASSERT_EQ(got.flags, expected.flags);
        const auto inner = evaluate_one<float>(function, below);
        const auto exact = evaluate_entry(entry, below);
        for (int d = 0; d < 2; ++d) {
          const auto distance = static_cast<int32_t>(inner.result[d] - exact.result[d]);
          ASSERT_LE(std::abs(distance), 1) << below;
          different += distance != 0;
        }
      }
    EXPECT_GT(different, 0) << entry.family << " does not use its own chain";
  }
}

// All quadrants of both signs, each against the entry; floats nearest to odd multiples of pi/2 too.
TEST(TrigonometrySingle, QuadrantsAndPoles) {
  std::vector<uint32_t> arguments = {0x3fc90fdb, 0x4096cbe4, 0x40fb53d1, 0x47a58f32};
  for (int n = -40; n <= 40; ++n)
    arguments.push_back(word_of(static_cast<float>(n * 0.785398L + 0.39L)));
  for (size_t k = 0; k < 4; ++k)
    for (const uint32_t x : arguments) {
      const auto got = evaluate_one<float>(single_precision(float_entries[k].family), x);
      const auto expected = evaluate_entry(float_entries[k], x);
      for (int d = 0; d < 2; ++d)
        EXPECT_LE(std::abs(static_cast<int32_t>(got.result[d] - expected.result[d])), 1)
            << float_entries[k].family << " at " << x;
    }
}

}  // namespace
}  // namespace dakvm::test
