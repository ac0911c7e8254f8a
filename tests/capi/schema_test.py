"""Holds replies of libkelplan against the schemas of capi/schema, and compares them with the program's answers.

schema_test.py LIBRARY SCHEMAS [PROGRAM]
"""

import ctypes
import json
import subprocess
import sys
import unittest
from pathlib import Path

import jsonschema

LIBRARY = ctypes.CDLL(sys.argv[1])
SCHEMAS = Path(sys.argv[2])
PROGRAM = sys.argv[3] if len(sys.argv) > 3 else None

# What is known of a study before it starts, in each of its kinds.
PLANNED = [
    ("two-means", {"effect-d": 0.5, "power": 0.8, "cluster-size": 20, "icc": 0.05, "dropout": 0.15}),
    ("two-means", {"effect-d": 0.5, "power": 0.8, "comparisons": 3, "effect-sd": 0.1}),
    ("mean", {"sd": 10, "half-width": 2.5, "population": 300}),
    ("mean", {"sd": 10, "half-width": 3, "assurance": 0.9}),
    ("mean", {"sd": 10, "n": 50, "half-width": 3, "solve": "assurance"}),
]

LIBRARY.kelplan_describe.restype = ctypes.c_char_p
LIBRARY.kelplan_free.argtypes = [ctypes.c_void_p]
LIBRARY.kelplan_release.argtypes = [ctypes.c_void_p]


def strict(schema):
    """The schema with no member but those it names: what is added must be described."""
    if isinstance(schema, list):
        return [strict(each) for each in schema]
    if not isinstance(schema, dict):
        return schema
    result = {key: strict(each) for key, each in schema.items()}
    if schema.get("type") == "object" and "properties" in schema:
        result.setdefault("additionalProperties", False)
    return result


def validator(name):
    schema = strict(json.loads((SCHEMAS / f"{name}.json").read_text()))
    jsonschema.Draft202012Validator.check_schema(schema)
    return jsonschema.Draft202012Validator(schema)


VALIDATORS = {path.stem: validator(path.stem) for path in SCHEMAS.glob("*.json")}


def ask(function, request, *arguments):
    """The status and the reply to a request, which may be any bytes."""
    answer = ctypes.c_void_p()
    sent = request if isinstance(request, bytes) else json.dumps(request).encode()
    status = function(sent, *arguments, ctypes.byref(answer))
    reply = json.loads(ctypes.string_at(answer).decode())
    LIBRARY.kelplan_free(answer)
    return status, reply


def solve(request):
    return ask(LIBRARY.kelplan_solve, request, None)


def convert(request):
    return ask(LIBRARY.kelplan_convert, request, None)


def printed(arguments):
    """What the program prints as JSON, as the library replies it."""
    run = [PROGRAM, *arguments.split(), "--format", "json"]
    answer = json.loads(subprocess.run(run, check=True, stdout=subprocess.PIPE, text=True).stdout)
    del answer["schema-version"]
    return answer


def without_head(reply):
    return {key: each for key, each in reply.items() if key not in ("schema", "version")}


def described():
    return json.loads(LIBRARY.kelplan_describe().decode())


def examples():
    return [(test, example) for test in described()["tests"] for example in test["examples"]]


class SchemaTest(unittest.TestCase):
    def check(self, name, reply):
        VALIDATORS[name].validate(reply)

    def test_description(self):
        self.check("description", described())

    def test_a_schema_can_fail(self):
        with self.assertRaises(jsonschema.ValidationError):
            self.check("description", {**described(), "more": 1})
        with self.assertRaises(jsonschema.ValidationError):
            self.check("answer", solve({"test": "anova"})[1])

    def test_answers(self):
        for test, example in examples():
            request = {"test": test["name"], "inputs": example["inputs"], "explain": True, "densities": True,
                       "text": True, "calls": True}
            status, reply = solve(request)
            self.assertEqual(status, 0, reply)
            self.check("answer", reply)
            self.check("answer", solve({**request, "names": "underscore"})[1])

    def test_answers_are_the_program_s(self):
        if not PROGRAM:
            self.skipTest("there is no program")
        for test, example in examples():
            reply = solve({"test": test["name"], "inputs": example["inputs"], "explain": True})[1]
            self.assertEqual(without_head(reply), printed(example["arguments"] + " --explain"))

    def test_calls_of_the_program_give_the_same(self):
        if not PROGRAM:
            self.skipTest("there is no program")
        for test, example in examples():
            inputs = {**example["inputs"], "alpha": 0.1 / 3}
            reply = solve({"test": test["name"], "inputs": inputs, "text": True, "calls": True})[1]
            run = [PROGRAM, *reply["calls"]["program"].split()[1:]]
            self.assertEqual(subprocess.run(run, check=True, stdout=subprocess.PIPE, text=True).stdout, reply["text"])

    def test_calls_of_languages(self):
        inputs = {"power": 0.8, "means": [52, -47.5], "sd": 10, "one-sided": True}
        calls = solve({"test": "two-means", "inputs": inputs, "calls": True})[1]["calls"]
        self.assertEqual(calls["program"], "kelpower two-means --means 52,-47.5 --sd 10 --one-sided --power 0.8")
        self.assertEqual(calls["python"], "kelpower.two_means(means=[52, -47.5], sd=10, one_sided=True, power=0.8)")
        self.assertEqual(calls["r"], "kp_two_means(means = c(52, -47.5), sd = 10, one_sided = TRUE, power = 0.8)")
        calls = solve({"test": "two-proportions", "inputs": {"proportions": [0.1, 0.2], "n": [9, 8], "method": "conditional",
                                                             "one-sided": False}, "calls": True})[1]["calls"]
        self.assertEqual(calls["program"], "kelpower two-proportions --proportions 0.1,0.2 --n 9,8 --method conditional")
        self.assertEqual(calls["python"], 'kelpower.two_proportions(proportions=[0.1, 0.2], n=[9, 8], '
                                          'method="conditional", one_sided=False)')

    def test_conversions(self):
        for example in described()["effects"]["examples"]:
            request = {"inputs": example["inputs"], "explain": True}
            status, reply = convert(request)
            self.assertEqual(status, 0, reply)
            self.check("conversion", reply)
            self.check("conversion", convert({**request, "names": "underscore", "text": True})[1])
            if PROGRAM:
                self.assertEqual(without_head(reply), printed(example["arguments"] + " --explain"))

    def test_planned(self):
        for test, inputs in PLANNED:
            status, reply = solve({"test": test, "inputs": inputs})
            self.assertEqual(status, 0, reply)
            self.check("answer", reply)
            batch = ctypes.c_void_p()
            status, prepared = ask(LIBRARY.kelplan_prepare, {"test": test, "inputs": inputs}, ctypes.byref(batch))
            LIBRARY.kelplan_release(batch)
            self.assertEqual(status, 0, prepared)
            self.check("batch", prepared)
            if PROGRAM:
                options = " ".join(f"--{name} {value}" for name, value in inputs.items())
                self.assertEqual(without_head(reply), printed(f"{test} {options}"))

    def test_tables(self):
        for test, example in examples():
            status, reply = solve({"test": test["name"], "inputs": {**example["inputs"], "alpha": [0.01, 0.05, 2]}})
            self.assertEqual(status, 0, reply)
            self.assertEqual(len(reply["rows"]), 3)
            self.check("table", reply)

    def test_batches(self):
        for test, example in examples():
            batch = ctypes.c_void_p()
            status, reply = ask(LIBRARY.kelplan_prepare, {"test": test["name"], "inputs": example["inputs"],
                                                          "columns": ["alpha"]}, ctypes.byref(batch))
            LIBRARY.kelplan_release(batch)
            self.assertEqual(status, 0 if "alpha" not in example["inputs"] else 2, reply)
            self.check("batch" if status == 0 else "error", reply)

    def test_charts(self):
        for test in described()["tests"]:
            for axis in test["axes"]:
                reply = ask(LIBRARY.kelplan_draw, {"test": test["name"], "chart": axis["name"]}, None)[1]
                self.check("error", reply)
        request = {"test": "two-means", "inputs": {"means": [52, 47], "sd": 10, "n": 50}}
        for chart in ({"chart": "n"}, {"chart": "n-sd", "step": 0.1}, {"chart": "n", "names": "underscore"},
                      {"chart": "n", "picture": True}, {"chart": "n-sd", "step": 0.1, "picture": True}):
            status, reply = ask(LIBRARY.kelplan_draw, {**request, **chart}, None)
            self.assertEqual(status, 0, reply)
            self.check("chart", reply)
        curves = {"test": "two-means", "inputs": {"effect-d": [0.2, 0.5], "power": 0.8}, "chart": "n"}
        self.check("chart", ask(LIBRARY.kelplan_draw, curves, None)[1])

    def test_errors(self):
        wrong = [b"", b"\xff", b"[" * 100000, b"{}", {"test": "none"}, {"test": "anova"},
                 {"test": "anova", "inputs": {"effect-f": 2, "power": 9, "groups": 3}},
                 {"test": "anova", "inputs": {"effect-f": [0, 1], "means": [1, 2]}},
                 {"test": "anova", "inputs": {"effect-f": 0.1, "alpha": True}},
                 {"test": "anova", "inputs": {"means": [1, 1], "sd": 1, "power": 0.8}},
                 {"test": "anova", "inputs": {"means": [1], "sd": 1, "n": 2}},
                 {"test": "two-means", "inputs": {"effect-d": 1, "interval": True}}]
        for request in wrong:
            status, reply = solve(request)
            self.assertIn(status, (2, 3), request)
            self.check("error", reply)
        for request in ({}, {"inputs": {"t": 2}}, {"inputs": {"effect-d": "x"}}, {"test": "effect"}):
            status, reply = convert(request)
            self.assertEqual(status, 2, request)
            self.check("error", reply)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
