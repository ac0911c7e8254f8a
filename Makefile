# One command per wish. Each installs the Debian packages that it needs and finds missing.

PRESET ?= release
BUILD := build/$(PRESET)
PREFIX ?= /usr/local
# The last commit before the distributions were computed in plain doubles.
BEFORE ?= 73ba671
FUZZ := build/fuzz
FUZZ_SECONDS ?= 60
FUZZ_SEED ?= 0
SEARCH_SEED ?= 1
JOBS := $(shell nproc)

# The folders of the tests without the program, the packages and the tools.
CORE := kelcommon engine vectors cases frame anova chi_square comparisons means proportions correlation ranks regression variances exports planner
space := $() $()
WASM_MODULE := build/wasm/web/core
PLATFORMS := test-clang test-arm64 test-wasm test-windows test-fma

.PHONY: compared help run test test-native test-core $(PLATFORMS) build bench bench-peers bench-before bench-wasm bench-web web wasm-module test-web lint-web lint format install accuracy worst fuzz fuzz-build fuzz-seeds asan tsan coverage mutants valgrind clean wheel test-python bench-python r test-r bench-scipy site lint-docs deb test-deb zip test-zip dist validate

run: configure-$(PRESET) ## build the program and plan a real study
	@echo "Building the program; the first time this takes a minute ..."
	@cmake --build $(BUILD) -j $(JOBS) --target kelpower_cli
	@sh tools/run_example.sh $(BUILD)/cli/kelpower

help: ## list these commands
	@sed -n 's/^\([a-z][a-z0-9 -]*\):.*## \(.*\)/\1\t\2/p' Makefile | expand -t 34

build: configure-$(PRESET) ## build libraries, program and tests
	@cmake --build $(BUILD) -j $(JOBS)

configure-%:
	@sh tools/install_packages.sh build
	@cmake --preset $* -Wno-dev --log-level=WARNING

test: ## build and pass all tests: of the libraries and the program, then of Python, R and the browser side by side
	@sh tools/install_packages.sh build python r wasm web
	@$(MAKE) --no-print-directory test-native
	@$(MAKE) --no-print-directory -j $(JOBS) --output-sync=target test-python test-r test-web

test-native: build ## the tests of the libraries and of the program
	@sh tools/install_packages.sh shells
	@ctest --test-dir $(BUILD) --output-on-failure -j $(JOBS) $(LEFT_OUT:%=-LE '^%$$')

r: ## make the source package of R in build/r
	@sh tools/install_packages.sh r
	@rm -rf build/r/third_party && sh tools/third_party.sh build/r/third_party
	@sh tools/r/compile.sh build/r $(JOBS) python3 -B tools/r/make_tarball.py . build/r --include build/r/third_party

test-r: r ## check the source package of R as CRAN does, and run the R code of the pages
	@sh tools/r/compile.sh build/r $(JOBS) sh tools/r/check.sh . build/r

test-core: configure-$(PRESET) ## the quick loop: build and pass the tests of the distributions, the core and the planner
	@cmake --build $(BUILD) -j $(JOBS) --target $(CORE:%=tests_%)
	@ctest --test-dir $(BUILD) --output-on-failure -j $(JOBS) -LE '^(long|patience)$$' -L '^($(subst $(space),|,$(CORE)))$$'

wasm-module:
	@sh tools/install_packages.sh build wasm web
	@cmake --preset wasm -Wno-dev --log-level=WARNING
	@cmake --build --preset wasm -j $(JOBS) --target kelplan_module

web: wasm-module ## build the planner page: build/web/kelpower.html, which opens from the disk, and build/web/site for a server
	@sh web/build.sh $(WASM_MODULE)

lint-web: web
	@sh web/lint.sh

test-web: lint-web compared ## the tests of the planner page and of its package, in Node and in Chromium
	@KELPLAN_LIBRARY=$(abspath $(BUILD))/capi/libkelplan.so sh web/test.sh

test-clang: ## the tests, compiled with clang; but for drawn studies and all charts
	@sh tools/install_packages.sh build clang
	@$(MAKE) --no-print-directory test-native PRESET=clang LEFT_OUT=patience

test-arm64 test-wasm: test-%: cross-% ## the tests on 64-bit Arm in an emulator, and as WebAssembly in Node
	@ctest --preset $* -j $(JOBS)

test-windows: cross-windows ## the tests for 64-bit Windows, under Wine
	@sh tools/test_windows.sh build/windows $(JOBS)

cross-%:
	@sh tools/install_packages.sh build $*
	@cmake --preset $* -Wno-dev --log-level=WARNING
	@cmake --build --preset $* -j $(JOBS)

test-fma: configure-fma ## the distributions and the reference cases with products and sums fused
	@sh tools/test_fma.sh build/fma $(JOBS)

# What the tests of other languages compare with.
compared: configure-$(PRESET)
	@cmake --build $(BUILD) -j $(JOBS) --target kelplan kelpower_cli

wheel: compared ## build the sdist and the wheel of the Python package, check them, and test the wheel in a virtual environment
	@sh tools/install_packages.sh python
	@sh tools/python/wheel.sh build/python-package

test-python: wheel ## the tests of the Python package

site: compared ## build the site of the documentation in build/site; the planner page is in it where `make web` has built it
	@sh tools/install_packages.sh site
	@sh tools/site/build.sh $(BUILD)/cli/kelpower $(BUILD)/capi/libkelplan.so

lint-docs: compared ## check the spelling of the documentation, and run its code: that of the program, and of Python and R where their packages are built
	@sh tools/install_packages.sh site
	@sh tools/docs/lint.sh $(BUILD)/cli/kelpower

bench: build ## measure speed
	$(BUILD)/bench/kelpower_bench

bench-peers: build ## measure speed beside pwr, base R, statsmodels and pystatpower and write docs/performance.md
	@sh tools/install_packages.sh peers
	@sh tools/peers/unpack_statsmodels.sh build/peers/statsmodels || echo "statsmodels is left out"
	@python3 -m venv build/peers/pystatpower && build/peers/pystatpower/bin/pip install --quiet --disable-pip-version-check pystatpower || { rm -rf build/peers/pystatpower; echo "pystatpower is left out"; }
	@python3 -B tools/peers/measure.py . $(BUILD) build/peers/statsmodels docs/performance.md
	@python3 -B tools/peers/measure_comparisons.py $(BUILD) build/peers/statsmodels build/peers/pystatpower docs/performance.md
	@$(MAKE) --no-print-directory r
	@mkdir -p build/r/library && sh tools/r/compile.sh build/r $(JOBS) R CMD INSTALL --no-docs --library=build/r/library build/r/kelpower_*.tar.gz >build/r/install.log 2>&1
	@python3 -B tools/peers/from_r.py build/r/library docs/performance.md

bench-before: configure-$(PRESET) ## measure the distributions beside those of an earlier commit, BEFORE=COMMIT, and write it into docs/performance.md
	@sh tools/install_packages.sh before
	@cmake --build $(BUILD) -j $(JOBS) --target kelcommon_bench
	@sh tools/peers/build_before.sh $(BEFORE) build/before
	@python3 -B tools/peers/before.py . $(BUILD) build/before/build $(BEFORE) docs/performance.md

bench-wasm: configure-$(PRESET) ## measure speed as WebAssembly beside the native one and write it into docs/performance.md
	@sh tools/install_packages.sh wasm
	@cmake --preset wasm -Wno-dev --log-level=WARNING
	@cmake --build $(BUILD) -j $(JOBS) --target kelpower_timing
	@cmake --build --preset wasm -j $(JOBS) --target kelpower_timing
	@python3 -B tools/peers/wasm.py $(BUILD) build/wasm docs/performance.md

bench-scipy: ## measure the distributions in Python beside SciPy's and write it into docs/performance.md and docs/python-lib.md
	@sh tools/install_packages.sh build
	@python3 -m venv build/peers/scipy && build/peers/scipy/bin/pip install --quiet . scipy
	@build/peers/scipy/bin/python -B tools/peers/scipy_distributions.py . docs/performance.md docs/python-lib.md

bench-python: configure-$(PRESET) ## measure the Python package beside the library and statsmodels and write it into docs/performance.md
	@sh tools/install_packages.sh python
	@cmake --build $(BUILD) -j $(JOBS) --target kelpower_core_loop
	@sh tools/peers/unpack_statsmodels.sh build/peers/statsmodels || echo "statsmodels is left out"
	@python3 -m pip install --quiet --disable-pip-version-check --upgrade --no-deps --target build/peers/package .
	@python3 -B tools/peers/from_python.py $(BUILD) build/peers/package build/peers/statsmodels docs/performance.md

bench-web: web configure-$(PRESET) ## measure the planner page beside the native library and write it into docs/performance.md
	@cmake --build $(BUILD) -j $(JOBS) --target kelplan_timing
	@python3 -B tools/peers/web.py $(BUILD) web build/web/kelpower.html docs/performance.md

validate: configure-$(PRESET) ## hold the power of every test against a million drawn studies a design, and write docs/validation.md
	@cmake --build $(BUILD) -j $(JOBS) --target kelplan kelpower_validation
	@sh tools/validation/run.sh $(BUILD) $(JOBS) docs/validation.md

worst: build ## search the distributions for their largest errors and keep the worst points among the references
	@python3 -m venv build/venv && build/venv/bin/pip install --quiet python-flint
	@rm -f build/found.csv
	@build/venv/bin/python -B tools/references/search_worst.py $(BUILD)/kelcommon/libkelcommon.so --seed $(SEARCH_SEED) --output build/found.csv
	@build/venv/bin/python -B tools/references/worst.py build/found.csv

accuracy: build ## measure accuracy and write docs/accuracy.md; fails where it promises more
	$(BUILD)/tools/accuracy/kelpower_accuracy docs/accuracy.md

lint: configure-dev ## check format and common mistakes
	@sh tools/install_packages.sh lint
	@sh tools/lint.sh build/dev

format: ## format all sources in place
	@sh tools/install_packages.sh lint
	@git ls-files '*.h' '*.cpp' | xargs clang-format -i

asan tsan: ## all tests under sanitizers
	@$(MAKE) --no-print-directory test-native PRESET=$@

coverage: ## all tests with coverage, which must be what tools/coverage demands
	@find build/coverage -name '*.gcda' -delete 2>/dev/null || true
	@$(MAKE) --no-print-directory test-native PRESET=$@
	@python3 -B tools/coverage/coverage.py . build/coverage

mutants: ## demand that a test fails for each of the deliberate faults in tools/mutants
	@sh tools/install_packages.sh build
	@python3 -B tools/mutants/run.py . build/mutants

fuzz: fuzz-kelcommon fuzz-kelpower fuzz-kelplan ## fuzz each library for FUZZ_SECONDS, with new inputs each time unless a FUZZ_SEED is given; with -j2 two at once

fuzz-build:
	@sh tools/install_packages.sh build fuzz
	@cmake --preset fuzz -Wno-dev --log-level=WARNING
	@cmake --build $(FUZZ) -j $(JOBS)

fuzz-kelcommon: MAX_LEN := 64
fuzz-kelpower: MAX_LEN := 256
fuzz-kelplan: MAX_LEN := 1024
fuzz-%: fuzz-build
	@sh tools/fuzz.sh $(FUZZ) $* $(FUZZ_SECONDS) $(MAX_LEN) $(FUZZ_SEED)

fuzz-seeds: fuzz-build ## write the first inputs of the export target anew, from the reference cases
	@rm -rf fuzz/corpus/kelpower
	@mkdir -p fuzz/corpus/kelpower
	$(FUZZ)/fuzz/fuzz_calls write fuzz/corpus/kelpower

valgrind: build ## look for leaks and stray reads in the vector tests
	@sh tools/install_packages.sh valgrind
	@sh tools/valgrind.sh $(BUILD)

deb: ## make the Debian packages in build/debian/packages
	@sh tools/install_packages.sh build deb
	@sh tools/packages/make_deb.sh build/debian $(JOBS)

test-deb: deb ## check the Debian packages with lintian, and install, use and remove them in a bare system; needs root
	@sh tools/packages/test_deb.sh build/debian

zip: ## make the zip file for Windows in build/windows/packages
	@sh tools/install_packages.sh build windows
	@sh tools/packages/make_zip.sh build/windows $(JOBS)

test-zip: zip ## unpack the zip file for Windows and use it under Wine
	@sh tools/packages/test_zip.sh build/windows

dist: ## make all that is given to others in build/dist, with checksums: packages of Debian, Python, R and npm, the zip file and the page
	@. tools/packages/source_date.sh && $(MAKE) --no-print-directory deb zip wheel r web
	@sh tools/packages/dist.sh build/dist

install: build ## install under PREFIX
	cmake --install $(BUILD) --prefix $(PREFIX)

clean:
	rm -rf build
