// The shapes of the core's texts that the page goes by.

import type { Description } from "kelpower";

export type { Answer, Conversion, Description, Failure, Kelpower, SolveRequest, ConvertRequest } from "kelpower";

export type Test = Description["tests"][number];
export type Parameter = Test["parameters"][number];
export type Route = Test["routes"][number];
export type Question = Route["question"];
export type Unknown = Test["unknowns"][number];
export type Effects = Description["effects"];
export type ConversionWay = Effects["conversions"][number];

/** A value in a request. */
export type Value = boolean | number | string | number[];
