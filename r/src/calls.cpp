/// Calls any export of the library by its name: the types of its arguments are deduced from the header.

#include "calls.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <new>
#include <type_traits>
#include <utility>
#include <vector>

#include "kelcommon/kel_mv.h"
#include "kelpower.h"
#include "watch.h"

namespace {

class UserStop : public StopRequest {
public:
  bool ShouldStop() override {
    isAsked = isAsked || kelr_should_stop(&watch_) != 0;
    return isAsked;
  }
  bool isAsked = false;

private:
  KelrWatch watch_ = kelr_watch();
};

/// What lives for the time of a call besides its arguments.
struct Frame {
  DoubleVector sizes;
  UserStop stop;
};

/// The whole number, or the nearest that the type has.
template <class T>
T Whole(double number) {
  using Limits = std::numeric_limits<T>;
  if (!(number > Limits::min())) return Limits::min();
  return number < Limits::max() ? static_cast<T>(number) : Limits::max();
}

template <class T>
struct Type;
template <>
struct Type<double> {
  static constexpr char letter = 'd';
  static double Get(const KelrArgument& a, Frame&) { return a.number; }
};
template <>
struct Type<std::int32_t> {
  static constexpr char letter = 'i';
  static std::int32_t Get(const KelrArgument& a, Frame&) { return Whole<std::int32_t>(a.number); }
};
template <>
struct Type<std::uint8_t> {
  static constexpr char letter = 'b';
  static std::uint8_t Get(const KelrArgument& a, Frame&) { return Whole<std::uint8_t>(a.number); }
};
template <>
struct Type<const double*> {
  static constexpr char letter = 'p';
  static const double* Get(const KelrArgument& a, Frame&) { return a.array; }
};
template <>
struct Type<double*> {
  static constexpr char letter = 'P';
  static double* Get(const KelrArgument& a, Frame&) { return a.array; }
};
template <>
struct Type<DoubleVector&> {
  static constexpr char letter = 'v';
  static DoubleVector& Get(const KelrArgument&, Frame& frame) { return frame.sizes; }
};
template <>
struct Type<StopRequest*> {
  static constexpr char letter = 's';
  static StopRequest* Get(const KelrArgument&, Frame& frame) { return &frame.stop; }
};
template <>
struct Type<const void*> {
  static constexpr char letter = 'n';
  static const void* Get(const KelrArgument&, Frame&) { return nullptr; }
};

constexpr char LetterOf(double (*)()) { return 'd'; }
constexpr char LetterOf(void (*)()) { return '0'; }
constexpr char LetterOf(XYPlot (*)()) { return 'x'; }
constexpr char LetterOf(XYZPlot (*)()) { return 'z'; }

void Store(KelrResult& result, double number) { result.number = number; }
void Store(KelrResult& result, const XYPlot& curve) {
  result.x_count = curve.count;
  result.x = curve.x;
  result.y = curve.y;
}
void Store(KelrResult& result, const XYZPlot& surface) {
  result.x_count = surface.xCount;
  result.y_count = surface.yCount;
  result.x = surface.x;
  result.y = surface.y;
  result.z = surface.z;
}

using Address = void (*)();
using Caller = void (*)(Address, const KelrArgument*, Frame&, KelrResult&);

struct Export : KelrFunction {
  Caller call;
  Address address;
};

template <class R, class... P, std::size_t... I>
void Invoke(R (*function)(P...), const KelrArgument* a, Frame& frame, KelrResult& result, std::index_sequence<I...>) {
  if constexpr (std::is_void_v<R>)
    function(Type<P>::Get(a[I], frame)...);
  else
    Store(result, function(Type<P>::Get(a[I], frame)...));
}

template <class... P>
struct Letters {
  static constexpr char text[] = {Type<P>::letter..., 0};
};

template <class R, class... P>
Export Bind(const char* name, R (*function)(P...)) {
  const Caller call = [](Address address, const KelrArgument* arguments, Frame& frame, KelrResult& result) {
    Invoke(reinterpret_cast<R (*)(P...)>(address), arguments, frame, result, std::index_sequence_for<P...>());
  };
  return {
      {name, Letters<P...>::text, LetterOf(static_cast<R (*)()>(nullptr))}, call, reinterpret_cast<Address>(function)};
}

const Export exports[] = {
#include "exports.h"
};

/// The sizes outlive the call in memory of C.
int KeepSizes(const DoubleVector& sizes, KelrResult& result) {
  if (sizes.empty()) return KELR_OK;
  result.sizes = static_cast<double*>(std::malloc(sizes.size() * sizeof(double)));
  if (!result.sizes) return KELR_NO_MEMORY;
  std::memcpy(result.sizes, sizes.data(), sizes.size() * sizeof(double));
  result.size_count = sizes.size();
  return KELR_OK;
}

void ReleaseCurve(KelrResult& result) {
  XYPlot curve{result.x_count, result.x, result.y};
  FreeMemXYPlot(&curve);
}

void ReleaseSurface(KelrResult& result) {
  XYZPlot surface{result.x_count, result.y_count, result.x, result.y, result.z};
  FreeMemXYZPlot(&surface);
}

}  // namespace

const KelrFunction* kelr_find(const char* name) {
  for (const Export& each : exports) {
    if (std::strcmp(each.name, name) == 0) return &each;
  }
  return nullptr;
}

int kelr_call(const KelrFunction* function, const KelrArgument* arguments, KelrResult* result) {
  *result = KelrResult{};
  try {
    Frame frame;
    const Export& found = *static_cast<const Export*>(function);
    found.call(found.address, arguments, frame, *result);
    return frame.stop.isAsked ? KELR_STOPPED : KeepSizes(frame.sizes, *result);
  } catch (...) {
    return KELR_NO_MEMORY;
  }
}

void kelr_release(KelrResult* result) {
  if (result->z) {
    ReleaseSurface(*result);
  } else if (result->x) {
    ReleaseCurve(*result);
  }
  std::free(result->sizes);
  *result = KelrResult{};
}

double kelr_missing() { return KelCommon::KelMV::Missing(); }
