#pragma once

#include <QImage>

#include <string>

/// Writes a baseline JPEG without colour subsampling, so that thin coloured lines stay what they are.
bool write_jpeg(const QImage& image, const std::string& path);
