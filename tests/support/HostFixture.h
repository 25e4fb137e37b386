#pragma once

#include "ScriptedHost.h"
#include "TestHome.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace qs::test {

// Resets of process-wide state, run after every test of HostFixture.  A folder registers its
// globals' reset once, for instance from a static initialiser in its test sources.
void addGlobalReset(std::function<void()> reset);
// The same, replacing an earlier reset of that name (safe to call from every SetUp).
void addGlobalReset(const std::string& name, std::function<void()> reset);
void runGlobalResets();

// A fresh private home and a scripted host per test; forms and globals reset afterwards.
class HostFixture : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    std::unique_ptr<TestHome> home;
    ScriptedHost hostScript;
};

} // namespace qs::test
