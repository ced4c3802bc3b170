# Copies FROM to TO where there is no TO: a catalogue of a user is never overwritten.
if(NOT EXISTS "${TO}")
    file(COPY_FILE "${FROM}" "${TO}.new")
    file(RENAME "${TO}.new" "${TO}")
endif()
