# A thin front: each target installs what it needs, configures, builds only what it runs, and runs it.
PRESET ?= gcc
SEED ?= 1
SEEDS ?= 1000
RUNS ?= 200
FUZZ_SECONDS ?= 30
# Of random mistakes: how many in each group of folders, and in which other folder than all of them.
COUNT ?= 30
FOLDER ?=
# ON where a commit is proved. Elsewhere the next compiler may warn of what is right, and nobody is stopped.
WARNINGS_AS_ERRORS ?= OFF

SYSTEM := $(shell uname -s)
DIR = build/$(PRESET)

export UBSAN_OPTIONS ?= print_stacktrace=1
# Many tests wait for a window or another process, so two processors have time for four.
export CTEST_PARALLEL_LEVEL ?= 4
# Whatever the locale, what is read and written is UTF-8.
export PYTHONUTF8 = 1

# Again only when the presets or the meaning of a warning changed, or something was installed; the build
# itself notices everything else.
strictness = CMAKE_COMPILE_WARNING_AS_ERROR:BOOL=$(WARNINGS_AS_ERRORS)
define configure
@test -f $(DIR)/build.ninja && test ! -e $(DIR)/configure-afresh && \
    test $(DIR)/CMakeCache.txt -nt CMakePresets.json && \
    grep -qx $(strictness) $(DIR)/CMakeCache.txt || tools/configure $(PRESET) -D $(strictness)
endef

# $(call build,GROUPS,TARGETS): sets up and builds targets of the preset.
define build
@tools/setup $(1) $(PRESET)
$(configure)
@cmake --build $(DIR) --target $(2)
endef

# $(call run-tests,CHOICE): ctest, and the plain counts as the last line whether it passed or failed.
define run-tests
@rm -f $(DIR)/tests.xml; \
ctest --test-dir $(DIR) $(1) --no-tests=error --max-width 90 --output-on-failure \
    --output-junit "$$PWD/$(DIR)/tests.xml"; \
status=$$?; tools/count-tests $(DIR)/tests.xml && exit $$status
endef

.PHONY: help run pictures app test check bench simulate first-run soak mutants fuzz coverage clean
.NOTPARALLEL:
.DEFAULT_GOAL := help

help:
	@echo "make run                 build Kestrune and start it, on Linux on a simulated Mac"
	@echo "make pictures            draw the pictures of README.md and the documents again"
	@echo "make app                 Kestrune.app for both processors, with Sparkle inside and signed"
	@echo "make test                build everything and run every test"
	@echo "make check               format, include rules, unbuilt files, strings, pictures, contract tests,"
	@echo "                         clang-tidy"
	@echo "make bench               the event path against its floor, the simulation, the wizard, a launch"
	@echo "make simulate            SEEDS=$(SEEDS) random sessions from SEED=$(SEED) on, against the invariants"
	@echo "make first-run           the wizard's story, simulated, on GNUstep and as Macs get it, step by step"
	@echo "make soak                RUNS=$(RUNS) times all tests on GNUstep, four runs at a time"
	@echo "make mutants             every deliberate mistake, and COUNT=$(COUNT) or all random ones in the"
	@echo "                         application, simulation and binding, or FOLDER; tests have to find them"
	@echo "make fuzz                every fuzzer for FUZZ_SECONDS=$(FUZZ_SECONDS) seconds"
	@echo "make coverage            line and branch coverage of Kestrune/, base/ and ui/; fails under 100 %"
	@echo "make clean               remove everything that was built"
	@echo
	@echo "PRESET=gcc, clang or sanitize chooses the build; PRESET=arm64 runs the half of Kestrune.app for"
	@echo "Apple's processors in an emulator. Every target installs what it needs."

# The parameters go through the environment: names of certificates have spaces and parentheses. "-" is an
# ad-hoc signature.
export DEV_IDENTITY ?= -
ifeq ($(SYSTEM),Darwin)
run:
	@tools/setup run
	@tools/run --identity "$$DEV_IDENTITY"
else
run:
	$(call build,run,kestrune-desk)
	@$(DIR)/desk/kestrune-desk
endif

# Those that the documents show.
pictures:
	$(call build,run,kestrune-desk)
	@tools/draw-documents $(DIR)/desk/kestrune-desk

# SPARKLE is the path of a Sparkle.framework or "none".
export IDENTITY ?= -
export SPARKLE FEED_URL PUBLIC_KEY
app:
	@tools/setup app
	@tools/app --system $(SYSTEM) --identity "$$IDENTITY" --sparkle "$$SPARKLE" --feed-url "$$FEED_URL" \
	    --public-key "$$PUBLIC_KEY"

ifeq ($(SYSTEM),Darwin)
test: override PRESET = mac
test:
	@tools/setup test
	cmake --preset mac
	cmake --build --preset mac --parallel "$$(sysctl -n hw.ncpu)" --target all mac-tests
	$(call run-tests)
else
# Builds, seals and checks what Macs get, for the tests of the part that runs here: on its processor, and
# without sanitizers, which know nothing of its memory.
ifeq ($(PRESET)/$(shell uname -m),$(filter-out sanitize,$(PRESET))/x86_64)
for_macs = app
mac_stories = scenarios_macho_gnustep
mac_process = kestrune-macho-on-gnustep
# The build that is of this machine, of the programs that an emulated one works with.
native = $(if $(filter arm64,$(PRESET)),gcc,$(PRESET))
define build-for-macs
@tools/app --system $(SYSTEM) --sparkle none --folder build/$(native)/app --preset $(native)
@cmake --build build/cross-arm64
@cmake --build build/cross-x86_64
endef
endif

# In the emulator, which is slow, only what runs the part of the application that runs nowhere else.
ifeq ($(PRESET),arm64)
test:
	$(call build,test $(for_macs),mach-programs)
	$(build-for-macs)
	@cmake --build build/$(native) --target kestrune-desk kestrune_home scenarios_sim
	$(call run-tests,--label-regex mach)
else
test:
	$(call build,test $(for_macs),all)
	$(build-for-macs)
	$(call run-tests)
endif
endif

# What both implementations define is seen where they are built, and so is what the desk draws.
.PHONY: implementations
implementations: override PRESET = gcc
implementations:
	$(call build,check app,kestrune_contract kestrune_sim kestrune_mac kestrune-desk)

# clang-tidy understands the flags of clang++ only, and needs nothing but to know of every file.
check: private override PRESET = check
check: private override WARNINGS_AS_ERRORS = ON
check: implementations
	@tools/setup check app $(PRESET)
	$(configure)
	@cmake --build $(DIR) --target build.ninja
	@tools/check --build $(DIR) --build build/gcc

bench:
	$(call build,bench $(for_macs),bench)
	$(build-for-macs)
	@benchmarks/run $(DIR)

simulate:
	$(call build,simulate,kestrune-simulate kestrune-simulate-shell)
	@$(DIR)/tests/random/kestrune-simulate --seed $(SEED) --seeds $(SEEDS)
	@$(DIR)/tests/random/kestrune-simulate-shell --seed $(SEED) --seeds $(SEEDS)

first-run:
	$(call build,test $(for_macs),scenarios_sim scenarios_gnustep $(mac_stories))
	$(build-for-macs)
	@tests/scenarios/first-run $(DIR)

soak:
	$(call build,test $(for_macs),gnustep-tests kestrune-on-gnustep kestrune_home $(mac_process))
	$(build-for-macs)
	@tests/gnustep/soak $(DIR)/tests/gnustep $(RUNS)

# The mistakes that somebody has thought of, unless a folder is named, and those made by rule. Of the tests
# only what can judge them is built.
mutants: override PRESET = mutants
mutants:
ifeq ($(strip $(FOLDER)),)
	$(call build,mutants,mistakes)
	$(call run-tests,--label-regex mistakes)
	@tests/mutants/by_rule --build $(DIR) --seed "$(SEED)" --count "$(COUNT)"
else
	@tools/setup mutants $(PRESET)
	$(configure)
	@tests/mutants/by_rule --build $(DIR) --seed "$(SEED)" --count "$(COUNT)" "$(FOLDER)"
endif

fuzz: override PRESET = fuzz
fuzz:
	$(call build,fuzz,fuzzers)
	@tests/fuzz/run $(DIR) $(FUZZ_SECONDS)

coverage: override PRESET = coverage
coverage:
	$(call build,coverage,unit-tests)
	@find $(DIR) -name '*.gcda' -delete
	$(call run-tests,--label-regex unit)
	@tools/coverage $(DIR)

clean:
	rm -rf build out
