#pragma once

class Camera;

// Each takes the pictures of a part of the program.

void shootSections(Camera& camera);
void shootInspector(Camera& camera);
void shootCleanup(Camera& camera);
void shootFreeRAM(Camera& camera);
void shootPanels(Camera& camera);
void shootHistory(Camera& camera);
void shootBanners(Camera& camera);
void shootSettings(Camera& camera);
void shootSessions(Camera& camera);
void shootSheets(Camera& camera);
