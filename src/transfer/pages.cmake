# The sheet of the file transfer settings: part of the editor's widgets, not of the engine.
target_sources(quendra_widgets PRIVATE
    transfer/advanced_page.cpp
    transfer/bound_page.cpp
    transfer/settings_page.cpp
    transfer/transfer_sheet_page.cpp)
