# The two commands of the README, and what helps while working. Everything else is CMake's: see CMakePresets.json.
.PHONY: run check bench coverage package check-packages format clean

run:            ## Build for this machine and show the library at its work
	@scripts/run

check:          ## Every target, every test, every gate
	@scripts/check

bench:          ## Build and run the benchmarks
	@scripts/bench

coverage:       ## Count the lines and branches that the tests run
	@scripts/coverage

package:        ## Make the packages of a release in build/packages
	@scripts/package

check-packages: ## Make the packages, install or unpack each, and use it
	@scripts/check-packages

format:         ## Format all C and C++ sources
	@scripts/format -i

clean:          ## Remove everything that was built
	rm -rf build
