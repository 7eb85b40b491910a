// One measured subject per function and file.
#pragma once

namespace recoveryui::bench {

class Host;

void MeasureWizard(const Host& host);
void MeasureManager(Host& host);
void MeasureScenarioList();
void MeasureRecoveryTab(const Host& host);
void MeasureRecords();
void MeasureStore();
void MeasureScript();
void MeasureCreation();
void MeasureSize();
void MeasureIdle(const Host& host);

}  // namespace recoveryui::bench
