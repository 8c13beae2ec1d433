# Thin entry points; CMake does the building. Each target installs missing packages first.
BUILD      ?= build
TEST_BUILD ?= build-test
FUZZ_BUILD ?= build-fuzz
FUZZ_TIME  ?= 60
JOBS       ?= $(shell nproc)

.PHONY: deps build demo test bench fuzz clean

deps:
	@scripts/install-deps

build: deps
	@cmake -S . -B $(BUILD) -G Ninja -DCMAKE_BUILD_TYPE=Release -DMERO_TESTS=OFF -DMERO_BENCH=ON >/dev/null
	@cmake --build $(BUILD) -j $(JOBS)

demo: build
	@scripts/demo

# The tests run against a separate tree built with AddressSanitizer and
# UndefinedBehaviorSanitizer, so that a memory error or undefined behaviour fails them.
test: deps
	@cmake -S . -B $(TEST_BUILD) -G Ninja -DCMAKE_BUILD_TYPE=Debug -DMERO_SANITIZE=ON \
	  -DMERO_BIN_DIR=$(abspath $(TEST_BUILD))/bin >/dev/null
	@cmake --build $(TEST_BUILD) -j $(JOBS)
	@ctest --test-dir $(TEST_BUILD) --output-on-failure -j $(JOBS)

bench: build
	@for b in $(wildcard bench/*.sh); do echo "== $$b"; bash $$b || exit 1; done

# Each libFuzzer harness of fuzz/ for FUZZ_TIME seconds, in a clang tree of its own (see
# scripts/fuzz); `make test` only replays their corpora and kept reproducers.
fuzz:
	@scripts/fuzz $(FUZZ_BUILD) $(FUZZ_TIME) $(FUZZ_HARNESSES)

clean:
	rm -rf $(BUILD) $(TEST_BUILD) $(FUZZ_BUILD) bin
