#include "External.h"

#include <QDebug>
#include <QTimer>

CNavPlug::CNavPlug(int interval)
{
    if (!mapping.attach()) {
        qDebug() << "Error CreateFileMapping";
        return;
    }
    Init(interval);
}

CNavPlug::~CNavPlug()
{
    Close();
}

void CNavPlug::Init(int interval)
{
    timer = new QTimer;
    timer->start(interval);
    qDebug() << "";
    view = mapping.map();
    if (view == nullptr) {
        qDebug() << "Error MapViewOfFile";
        return;
    }
    qDebug() << "NAVIGATION: Connect";
    connected = true;
    record = static_cast<const volatile AeoZephanNavRecord*>(view);
}

void CNavPlug::Close()
{
    connected = false;
    if (timer != nullptr) {
        timer->stop();
    }
    qDebug() << "NAVIGATION: Disconnect";
    mapping.release();
    mapping.detach();
}
