// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace Tavrin::Benchmarks
{

// One a file of benchmarks; each adds its figures to the run.
void registerAuditFigures();
void registerBindFigures();
void registerEnhanceFigures();
void registerPageTextFigures();
void registerRegisterMapsFigures();
void registerSearchFigures();
void registerReadingFigures();
void registerStartUpFigures();

inline void registerAllFigures()
{
    registerAuditFigures();
    registerBindFigures();
    registerEnhanceFigures();
    registerPageTextFigures();
    registerRegisterMapsFigures();
    registerSearchFigures();
    registerReadingFigures();
    registerStartUpFigures();
}

} // namespace Tavrin::Benchmarks
