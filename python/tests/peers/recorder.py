"""Runs the test functions of another package without that package, and writes down what they call and expect.

The names that a test file imports are replaced by recorders. A recorder answers with a `Call`, which keeps what was
asked of it, and the assertions see calls in place of numbers.
"""

import ast
import itertools
import sys
from contextlib import contextmanager

import numpy

METHODS = ("power", "solve_power")
RESULT = "power"  # the attribute of a result object that is its number


class Call:
    """A number that the package would have answered: an operation and what it is applied to."""

    def __init__(self, recorder, operation, operands):
        self.recorder, self.operation, self.operands = recorder, operation, operands

    def derived(self, operation, *operands):
        return Call(self.recorder, operation, [self, *operands])

    def __getattr__(self, name):
        if name.startswith("__"):
            raise AttributeError(name)
        return self if name == RESULT else self.derived("attribute", name)

    def __getitem__(self, index):
        return self.derived("item", index)

    def __sub__(self, other):
        return self.derived("subtract", other)

    def __truediv__(self, other):
        return self.derived("divide", other)

    def __lt__(self, other):
        return self.recorder.assertion(self, "less", other)

    def __gt__(self, other):
        return self.recorder.assertion(self, "greater", other)

    def __eq__(self, other):
        return self.recorder.assertion(self, "equal", other)

    __hash__ = None


class Internal:
    """Something inside the other package, such as the state of its solver."""

    def __getitem__(self, _):
        return self

    def __setitem__(self, *_):
        pass

    def __len__(self):
        return 0


class Function:
    """A function or class of the other package."""

    def __init__(self, recorder, name):
        self.recorder, self.name = recorder, name

    def __call__(self, *positional, **named):
        if not positional and not named:  # an object of a class without arguments
            return self
        names = self.recorder.signatures[self.name]
        return self.recorder.call(self.name, {**dict(zip(names, positional, strict=False)), **named})

    def __getattr__(self, name):
        return Function(self.recorder, f"{self.name}.{name}") if name in METHODS else Internal()


class Module:
    """A module of the other package."""

    def __init__(self, recorder):
        self.recorder = recorder

    def __getattr__(self, name):
        return Function(self.recorder, name)


class Numpy:
    """NumPy, whose questions about a call are assertions."""

    def __init__(self, recorder):
        self.recorder = recorder

    def __getattr__(self, name):
        def ask(value, *others, **named):
            if not isinstance(value, Call):
                return getattr(numpy, name)(value, *others, **named)
            if name == "isclose":
                return self.recorder.close(value, *others, **{"rtol": 1e-5, "atol": 1e-8, **named})
            if name in ("ceil", "maximum"):
                return value.derived(name, *others)
            return self.recorder.assertion(value, name, None)  # isnan and isfinite

        return ask if callable(getattr(numpy, name)) else getattr(numpy, name)


class Marks:
    """pytest.mark: parameters are kept, other marks mean nothing here but that an expected failure is left out."""

    def __getattr__(self, name):
        def mark(*arguments, **_):
            def decorate(function):
                if name == "xfail":
                    function.left_out = True
                if name == "parametrize":
                    function.parameters = [*getattr(function, "parameters", []), arguments]
                return function

            return decorate(arguments[0]) if len(arguments) == 1 and callable(arguments[0]) else decorate

        return mark


class Pytest:
    def __init__(self, recorder):
        self.recorder, self.mark = recorder, Marks()

    def raises(self, kind, match=None):
        return self.recorder.around("raises", kind.__name__, match)

    def warns(self, kind, match=None):
        return self.recorder.around("warns", getattr(kind, "__name__", str(kind)), match)


class Recorder:
    """Cases of one test file. `signatures` maps the package's functions to the names of their arguments."""

    def __init__(self, signatures, path):
        self.signatures, self.path = signatures, path
        self.cases, self.open_calls, self.test = [], [], ""

    def call(self, name, arguments):
        made = Call(self, name, arguments)
        self.open_calls.append((made, self.line()))
        return made

    def line(self):
        """The line of the test file that is being run."""
        frame = sys._getframe()
        while frame and frame.f_code.co_filename != self.path:
            frame = frame.f_back
        return frame.f_lineno if frame else 0

    def uses(self, value, found):
        return value is found or (isinstance(value, Call) and any(
            self.uses(part, found)
            for part in (value.operands.values() if isinstance(value.operands, dict) else value.operands)))

    def assertion(self, call, relation, expected, **more):
        self.open_calls = [(one, line) for one, line in self.open_calls
                           if not self.uses(call, one) and not self.uses(expected, one)]
        self.cases.append({"test": self.test, "line": self.line(), "question": call, "relation": relation,
                           "expected": expected, **more})
        return True

    def close(self, call, expected, rtol=0.0, atol=0.0):
        return self.assertion(call, "close", expected, relative=rtol, absolute=atol)

    def almost_equal(self, actual, desired, decimal=7, **_):
        call, expected = (actual, desired) if isinstance(actual, Call) else (desired, actual)
        return self.close(call, expected, atol=1.5 * 10.0**-decimal)

    def allclose(self, actual, desired, rtol=1e-7, atol=0, **_):
        return self.close(actual, desired, rtol=rtol, atol=atol)

    def equal(self, actual, desired, **_):
        if isinstance(actual, Internal) or not isinstance(actual, (Call, Internal)):
            self.cases.append({"test": self.test, "line": self.line(), "relation": "internal"})
        else:
            self.assertion(actual, "equal", desired)

    def array_less(self, actual, bound):
        self.assertion(actual, "less", bound)

    @contextmanager
    def around(self, relation, kind, match):
        before = self.open_calls
        self.open_calls = []
        yield
        for call, line in self.open_calls:
            self.cases.append({"test": self.test, "line": line, "question": call, "relation": relation, "kind": kind,
                               **({"match": match} if match else {})})
        self.open_calls = before

    def answer_alone(self):
        """Calls that no assertion looked at: they must only give an answer."""
        for call, line in self.open_calls:
            self.cases.append({"test": self.test, "line": line, "question": call, "relation": "answers"})
        self.open_calls = []


def signatures_of(source):
    """Argument names by function, and by method as `Class.method`."""
    names = {}

    def add(prefix, body, skipped):
        for node in body:
            if isinstance(node, ast.FunctionDef):
                names[prefix + node.name] = [a.arg for a in node.args.args[skipped:]]
            elif isinstance(node, ast.ClassDef):
                add(f"{node.name}.", node.body, 1)

    add("", ast.parse(source).body, 0)
    return names


class WithoutImports(ast.NodeTransformer):
    def visit_ImportFrom(self, node):
        return ast.copy_location(ast.Pass(), node)


def definitions(source, path, wanted):
    """The code of those classes and functions of a test file that are wanted, without its imports."""
    tree = ast.parse(source)
    tree.body = [node for node in tree.body
                 if isinstance(node, (ast.FunctionDef, ast.ClassDef)) and wanted(node.name)]
    return compile(WithoutImports().visit(tree), path, "exec")


def parameter_sets(function):
    """The arguments of each run of a test function."""
    parameters = getattr(function, "parameters", [])
    return [dict(zip([names for names, _ in parameters], values, strict=True))
            for values in itertools.product(*[values for _, values in parameters])]
