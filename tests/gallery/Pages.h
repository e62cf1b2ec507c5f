#pragma once

class QWidget;

QWidget* makeButtonsPage();
QWidget* makeFieldsPage();
QWidget* makeTreesPage();
QWidget* makeViewsPage();
QWidget* makePanelsPage();
