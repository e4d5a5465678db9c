"""The Python module, for every family it lists."""

import math
import unittest
import warnings

import numpy

import dakvmpx
from dakvmpx._functions import FAMILIES

REFERENCES = {"exp": math.exp, "ln": math.log, "sqrt": math.sqrt, "inv": lambda x: 1 / x}


def call(name, x, **options):
    form = FAMILIES[name][1]
    second = {"two_inputs": [x], "scalar_exponent": [0.5]}.get(form, [])
    return getattr(dakvmpx, name)(x, *second, **options)


class EveryFamily(unittest.TestCase):
    def test_types_grades_shapes(self):
        for name, (_, form, _, _) in FAMILIES.items():
            for dtype, grades in ((numpy.float64, ("A50", "A53")), (numpy.float32, ("A11", "A21", "A24"))):
                x = numpy.array([[0.25, 0.5], [0.75, 1.0]], dtype)
                if name == "acosh":
                    x += 1
                elif name == "atanh":
                    x /= 2
                with self.subTest(name=name, dtype=dtype):
                    default = call(name, x)
                    for grade in grades:
                        result = call(name, x, grade=grade)
                        first = result[0] if form == "two_outputs" else result
                        self.assertEqual((first.shape, first.dtype), (x.shape, x.dtype))
                        numpy.testing.assert_allclose(result, default, rtol=2e-3)
                    if form != "two_outputs":
                        out = numpy.empty_like(x)
                        self.assertIs(call(name, x, out=out), out)
                        numpy.testing.assert_array_equal(out, default)
                        aliased = x.copy()
                        call(name, aliased, out=aliased)
                        if form != "two_inputs":
                            numpy.testing.assert_array_equal(aliased, default)

    def test_values(self):
        x = numpy.linspace(0.1, 5, 1000)
        for name, reference in REFERENCES.items():
            expected = numpy.array([reference(v) for v in x])
            numpy.testing.assert_allclose(getattr(dakvmpx, name)(x), expected, rtol=3e-16)


class Errors(unittest.TestCase):
    def test_statuses_are_warnings(self):
        with self.assertWarnsRegex(dakvmpx.DomainWarning, "ln: .*outside the domain") as caught:
            result = dakvmpx.ln(numpy.array([-1.0, 1.0]))
        self.assertTrue(math.isnan(result[0]) and result[1] == 0)
        self.assertEqual(caught.filename, __file__)
        with self.assertWarns(dakvmpx.SingularityWarning):
            dakvmpx.inv(numpy.zeros(1))
        with self.assertWarns(dakvmpx.OverflowWarning):
            dakvmpx.exp(numpy.array([1e4]))
        with self.assertWarns(dakvmpx.UnderflowWarning):
            dakvmpx.exp(numpy.array([-1e4], numpy.float32))

    def test_wrong_arguments(self):
        x = numpy.ones(4)
        frozen = numpy.ones(4)
        frozen.flags.writeable = False
        for error, message, arguments in (
            (TypeError, "not a NumPy array", ([1.0],)),
            (TypeError, "dtype int64", (numpy.ones(4, int),)),
            (TypeError, "dtype >f8", (x.astype(">f8"),)),
            (ValueError, "not contiguous", (numpy.ones(8)[::2],)),
            (ValueError, "the input has", (x, numpy.ones(5))),
            (ValueError, "the input has", (x, numpy.ones(4, numpy.float32))),
            (ValueError, "read-only", (x, frozen)),
        ):
            with self.subTest(message), self.assertRaisesRegex(error, message):
                dakvmpx.exp(*arguments)
        with self.assertRaisesRegex(ValueError, "A24.*does not exist for float64"):
            dakvmpx.exp(x, grade="A24")
        with self.assertRaisesRegex(ValueError, "must agree"):
            dakvmpx.pow(x, numpy.ones(5))

    def test_empty_arrays(self):
        self.assertEqual(dakvmpx.exp(numpy.empty((0, 3))).shape, (0, 3))

    def test_version(self):
        self.assertEqual(len(dakvmpx.version()), 4)


if __name__ == "__main__":
    warnings.simplefilter("always")
    unittest.main()
