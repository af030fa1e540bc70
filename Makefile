# The two commands a person needs are `make run` and `make test`; both set up what is missing first.
PRESET ?= release
JOBS ?= 2
EXAMPLE ?= examples/control-panel.dfm
BIN = build/$(PRESET)/bin

.PHONY: build setup run test bench screenshots docs format asan clean

build: setup
	cmake --preset $(PRESET) $(if $(shell command -v ccache),-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
	cmake --build --preset $(PRESET) -j $(JOBS)

setup:
	@tools/setup.sh

# Without a display the designer does the same job headless and leaves pictures of it.
run: build
	@if [ -n "$$DISPLAY$$WAYLAND_DISPLAY" ]; then \
	  $(BIN)/vrxdesigner $(EXAMPLE); \
	else \
	  echo "No display: the designer runs headless. Its pictures are in build/pictures:"; \
	  QT_QPA_PLATFORM=offscreen $(BIN)/vrxdesigner --pictures build/pictures $(EXAMPLE) 2>build/pictures.log || { cat build/pictures.log; exit 1; }; \
	  $(BIN)/vrx check $(EXAMPLE) && echo "vrx check $(EXAMPLE): no findings"; \
	fi

test: build
	ctest --test-dir build/$(PRESET) --output-on-failure --no-tests=error -j $(JOBS)

# Says what is missing when a preset or a machine has no benchmarks.
bench: build
	@cmake --build --preset $(PRESET) --target bench

# The pictures of the README.
screenshots: build
	QT_QPA_PLATFORM=offscreen $(BIN)/vrxdesigner --pictures docs/pictures $(EXAMPLE)

# The page of all components and its pictures.
docs: build
	rm -f docs/pictures/components/*.png
	$(BIN)/vrx gallery -o docs/pictures/components >/dev/null
	rm docs/pictures/components/gallery.png
	$(BIN)/vrx describe --page > build/components.md
	mv build/components.md docs/components.md

asan:
	$(MAKE) PRESET=asan test

format:
	@tools/setup.sh format
	find . -path ./build -prune -o \( -name '*.h' -o -name '*.cpp' \) -print0 | xargs -0 clang-format -i

clean:
	rm -rf build
