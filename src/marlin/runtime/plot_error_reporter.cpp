// SPDX-License-Identifier: MIT
#include <marlin/core/detail/load_order.h>
#include <marlin/runtime/plot_error_reporter.h>

[[gnu::init_priority(
    MARLINSUITE::detail::LoadValues)]] PlotErrorReporter PlotErrorReporter::m_GlobalReporter;

std::vector<std::string> PlotErrorReporter::GetContexts() const {
    std::vector<std::string> contexts;
    contexts.reserve(m_Errors.size());
    for (const auto& entry : m_Errors) {
        contexts.push_back(entry.first);
    }
    return contexts;
}
