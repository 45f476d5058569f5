// Stands in for the main window until it is built: shows which company is open.
#pragma once

#include <QMainWindow>

class PlaceholderWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit PlaceholderWindow(QWidget* parent = nullptr);
};
