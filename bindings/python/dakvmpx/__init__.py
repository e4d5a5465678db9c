"""libdakvmpx for NumPy: elementary functions within a hair of correct rounding.

    >>> import numpy, dakvmpx
    >>> dakvmpx.exp(numpy.array([0.0, 1.0]))
    array([1.        , 2.71828183])

Each family is a function of its name in snake case (``exp``, ``inv_sqrt``, ``sin_cos``): arrays of
float64 or float32 in, an array of the same type and shape out. ``out=`` takes an array for the
results, which may be the input itself; functions of two outputs take and return a pair.
``grade=`` chooses "A53" (default) or "A50" for float64, "A24" (default), "A21" or "A11" for float32.
Elements outside the domain, poles, overflow and underflow have the results that IEEE 754 gives them,
and are told of by a warning: DomainWarning, SingularityWarning, OverflowWarning, UnderflowWarning,
all of them StatusWarning, which is a RuntimeWarning.

The shared library is looked for at the path in the environment variable DAKVMPX_LIBRARY, beside this
package, and then where the system's loader looks.
"""

import ctypes
import os
import pathlib
import struct
import warnings

import numpy

from ._functions import FAMILIES

__all__ = [
    "StatusWarning",
    "DomainWarning",
    "SingularityWarning",
    "OverflowWarning",
    "UnderflowWarning",
    "version",
    *FAMILIES,
]


class StatusWarning(RuntimeWarning):
    """An element was exceptional."""


class DomainWarning(StatusWarning):
    """An argument lay outside the domain; its result is NaN unless the function says otherwise."""


class SingularityWarning(StatusWarning):
    """An argument was a pole; its result is an infinity."""


class OverflowWarning(StatusWarning):
    """A result overflowed."""


class UnderflowWarning(StatusWarning):
    """A result underflowed."""


_WARNINGS = {
    12: (OverflowWarning, "a result overflowed"),
    17: (UnderflowWarning, "a result underflowed"),
    18: (SingularityWarning, "an argument was a pole"),
    19: (DomainWarning, "an argument lay outside the domain"),
}
_GRADES = {"float64": ("A53", "A50"), "float32": ("A24", "A21", "A11")}
_LONGEST = 2**31 - 1  # of one call of the library


def _load():
    name = "libdakvmpx.so"
    given = os.environ.get("DAKVMPX_LIBRARY")
    beside = pathlib.Path(__file__).parent / name
    path = given or (str(beside) if beside.exists() else name)
    try:
        return ctypes.CDLL(path)
    except OSError as error:
        raise ImportError(
            f"dakvmpx: cannot load {path} ({error}); install the library of this Python's word size "
            f"({8 * struct.calcsize('P')} bits), or set DAKVMPX_LIBRARY to its path"
        ) from None


_library = _load()


class _Version(ctypes.Structure):
    _fields_ = [
        ("numbers", ctypes.c_int32 * 4),
        ("target", ctypes.c_char * 4),
        ("name", ctypes.c_char_p),
        ("version", ctypes.c_char_p),
        ("build_date", ctypes.c_char_p),
    ]


def version():
    """The version of the shared library, as a tuple of four numbers."""
    _library.dakvmGetLibVersion.restype = ctypes.POINTER(_Version)
    return tuple(_library.dakvmGetLibVersion().contents.numbers)


def _checked_input(name, what, x):
    if not isinstance(x, numpy.ndarray):
        raise TypeError(
            f"{name}: {what} is a {type(x).__name__}, not a NumPy array; numpy.asarray(x, float) "
            "makes one"
        )
    if x.dtype not in (numpy.float64, numpy.float32):  # which are in native byte order
        raise TypeError(
            f"{name}: {what} has dtype {x.dtype}; float64 and float32 are supported, "
            "x.astype(numpy.float64) converts"
        )
    if not x.flags.c_contiguous:
        raise ValueError(f"{name}: {what} is not contiguous; numpy.ascontiguousarray(x) copies it")
    return x


def _checked_output(name, what, out, like):
    if out is None:
        return numpy.empty_like(like)
    _checked_input(name, what, out)
    if out.dtype != like.dtype or out.shape != like.shape:
        raise ValueError(
            f"{name}: {what} has shape {out.shape} and dtype {out.dtype}; the input has "
            f"{like.shape} and {like.dtype}, and so must it"
        )
    if not out.flags.writeable:
        raise ValueError(f"{name}: {what} is read-only")
    return out


def _entry(name, family, dtype, grade, argtypes):
    grades = _GRADES[dtype.name]
    if grade is None:
        grade = grades[0]
    if grade not in grades:
        raise ValueError(f"{name}: grade {grade!r} does not exist for {dtype}; it has {', '.join(grades)}")
    suffix = "64f" if dtype == numpy.float64 else "32f"
    entry = getattr(_library, f"daks{family}_{suffix}_{grade}")
    entry.restype = ctypes.c_int32
    entry.argtypes = argtypes
    return entry


def _run(name, family, grade, sources, destinations, exponent=None):
    """Calls the C function, in parts that an int32 can count."""
    like = sources[0]
    ctype = ctypes.c_double if like.dtype == numpy.float64 else ctypes.c_float
    extra = [] if exponent is None else [ctype]
    entry = _entry(
        name,
        family,
        like.dtype,
        grade,
        [ctypes.c_void_p] * len(sources) + extra + [ctypes.c_void_p] * len(destinations) + [ctypes.c_int32],
    )
    for first in range(0, like.size, _LONGEST):
        at = first * like.itemsize
        status = entry(
            *(a.ctypes.data + at for a in sources),
            *([] if exponent is None else [exponent]),
            *(a.ctypes.data + at for a in destinations),
            min(_LONGEST, like.size - first),
        )
        if status < 0:
            raise RuntimeError(f"{name}: the library returned status {status}")
        if status > 0:
            category, text = _WARNINGS[status]
            warnings.warn(f"{name}: {text}", category, stacklevel=3)


def _one_input(name, family):
    def function(x, /, out=None, *, grade=None):
        _checked_input(name, "the input", x)
        out = _checked_output(name, "out", out, x)
        _run(name, family, grade, [x], [out])
        return out

    return function


def _two_inputs(name, family):
    def function(x, y, /, out=None, *, grade=None):
        _checked_input(name, "the first input", x)
        _checked_input(name, "the second input", y)
        if x.dtype != y.dtype or x.shape != y.shape:
            raise ValueError(
                f"{name}: the inputs have shapes {x.shape} and {y.shape}, dtypes {x.dtype} and "
                f"{y.dtype}; they must agree"
            )
        out = _checked_output(name, "out", out, x)
        _run(name, family, grade, [x, y], [out])
        return out

    return function


def _scalar_exponent(name, family):
    def function(x, exponent, /, out=None, *, grade=None):
        _checked_input(name, "the input", x)
        out = _checked_output(name, "out", out, x)
        _run(name, family, grade, [x], [out], float(exponent))
        return out

    return function


def _two_outputs(name, family):
    def function(x, /, out=None, *, grade=None):
        _checked_input(name, "the input", x)
        if out is None:
            out = (None, None)
        if not isinstance(out, tuple) or len(out) != 2:
            raise TypeError(f"{name}: out must be a pair of arrays")
        first = _checked_output(name, "out[0]", out[0], x)
        second = _checked_output(name, "out[1]", out[1], x)
        if numpy.shares_memory(first, second):
            raise ValueError(f"{name}: the two outputs share memory")
        _run(name, family, grade, [x], [first, second])
        return first, second

    return function


_MAKERS = {
    "one_input": _one_input,
    "two_inputs": _two_inputs,
    "scalar_exponent": _scalar_exponent,
    "two_outputs": _two_outputs,
}


def _define():
    for name, (family, form, formula, domain) in FAMILIES.items():
        function = _MAKERS[form](name, family)
        function.__name__ = function.__qualname__ = name
        function.__doc__ = (
            f"{formula}, element by element.\n\nDomain: {domain}.\n\n"
            f"The C functions are daks{family}_64f_A53 and its grades; see the module for out= and grade=."
        )
        globals()[name] = function


_define()
