library(testthat)
library(kelpower)

test_check("kelpower")
