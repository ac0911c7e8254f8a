# One command per wish. Each installs the Debian packages that it needs and finds missing.

PRESET ?= release
BUILD := build/$(PRESET)
PREFIX ?= /usr/local
FUZZ := build/fuzz
FUZZ_SECONDS ?= 60
FUZZ_SEED ?= 0
JOBS := $(shell nproc)

.PHONY: run test build bench bench-peers lint format install accuracy fuzz fuzz-build fuzz-seeds asan tsan coverage mutants valgrind clean

run: configure-$(PRESET) ## build the program and plan a real study
	@echo "Building the program; the first time this takes a minute or two ..."
	@cmake --build $(BUILD) -j $(JOBS) --target kelpower_cli
	@sh tools/run_example.sh $(BUILD)/cli/kelpower

build: configure-$(PRESET)
	@cmake --build $(BUILD) -j $(JOBS)

configure-%:
	@sh tools/install_packages.sh build
	@cmake --preset $* -Wno-dev --log-level=WARNING

test: build ## build and pass all tests
	@ctest --test-dir $(BUILD) --output-on-failure -j $(JOBS)

bench: build ## measure speed
	$(BUILD)/bench/kelpower_bench

bench-peers: build ## measure speed beside pwr, base R and statsmodels and write docs/performance.md
	@sh tools/install_packages.sh peers
	@sh tools/peers/unpack_statsmodels.sh build/peers/statsmodels || echo "statsmodels is left out"
	@python3 -B tools/peers/measure.py . $(BUILD) build/peers/statsmodels docs/performance.md

accuracy: build ## measure accuracy and write docs/accuracy.md
	$(BUILD)/tools/accuracy/kelpower_accuracy docs/accuracy.md

lint: configure-dev ## check format and common mistakes
	@sh tools/install_packages.sh lint
	@sh tools/lint.sh build/dev

format: ## format all sources in place
	@sh tools/install_packages.sh lint
	@git ls-files '*.h' '*.cpp' | xargs clang-format -i

asan tsan: ## all tests under sanitizers
	@$(MAKE) --no-print-directory test PRESET=$@

coverage: ## all tests with coverage, which must be what tools/coverage demands
	@find build/coverage -name '*.gcda' -delete 2>/dev/null || true
	@$(MAKE) --no-print-directory test PRESET=$@
	@python3 -B tools/coverage/coverage.py . build/coverage

mutants: ## demand that a test fails for each of the deliberate faults in tools/mutants
	@sh tools/install_packages.sh build
	@python3 -B tools/mutants/run.py . build/mutants

fuzz: fuzz-kelcommon fuzz-kelpower ## fuzz each library for FUZZ_SECONDS, with new inputs each time unless a FUZZ_SEED is given; with -j2 both at once

fuzz-build:
	@sh tools/install_packages.sh build fuzz
	@cmake --preset fuzz -Wno-dev --log-level=WARNING
	@cmake --build $(FUZZ) -j $(JOBS)

fuzz-kelcommon: MAX_LEN := 64
fuzz-kelpower: MAX_LEN := 256
fuzz-%: fuzz-build
	@sh tools/fuzz.sh $(FUZZ) $* $(FUZZ_SECONDS) $(MAX_LEN) $(FUZZ_SEED)

fuzz-seeds: fuzz-build ## write the first inputs of the export target anew, from the reference cases
	@rm -rf fuzz/corpus/kelpower
	@mkdir -p fuzz/corpus/kelpower
	$(FUZZ)/fuzz/fuzz_calls write fuzz/corpus/kelpower

valgrind: build ## look for leaks and stray reads in the vector tests
	@sh tools/install_packages.sh valgrind
	@sh tools/valgrind.sh $(BUILD)

install: build ## install under PREFIX
	cmake --install $(BUILD) --prefix $(PREFIX)

clean:
	rm -rf build
